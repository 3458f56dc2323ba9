# Fails when a folder includes something of a folder it must not know. The arrows of the project:
# plugin -> operations -> operations/common -> host, and refhost -> host; benchmarks know the host and
# refhost/engine, tests may know all.
#
#   cmake -D SOURCE_DIR=... -P CheckLayers.cmake

function(forbid folder pattern)
    file(GLOB_RECURSE sources ${SOURCE_DIR}/${folder}/*.h ${SOURCE_DIR}/${folder}/*.cpp)
    if(NOT sources)
        message(SEND_ERROR "no sources in ${folder}; the check looks in the wrong place")
    endif()
    foreach(source IN LISTS sources)
        file(STRINGS ${source} includes REGEX "^#[ ]*include ")
        foreach(include IN LISTS includes)
            if(include MATCHES "\"(${pattern})")
                file(RELATIVE_PATH name ${SOURCE_DIR} ${source})
                message(SEND_ERROR "${name}: ${include}; ${folder}/ must not know it")
            endif()
        endforeach()
    endforeach()
endfunction()

forbid(host "plugin/|operations/|refhost/|tests/|benchmarks/")
forbid(operations/common "plugin/|operations/Text|refhost/|tests/|benchmarks/|host/")
forbid(operations "plugin/|refhost/|tests/|benchmarks/|host/")
forbid(plugin "refhost/|tests/|benchmarks/|host/")
forbid(refhost/core "plugin/|operations/|refhost/engine|refhost/validator|refhost/runner|refhost/workbench|tests/|benchmarks/")
forbid(refhost/engine "plugin/|operations/|refhost/core|refhost/validator|refhost/runner|refhost/workbench|tests/|benchmarks/")
forbid(refhost/validator "plugin/|operations/|refhost/core|refhost/runner|refhost/workbench|tests/|benchmarks/")
forbid(refhost/runner "plugin/|operations/|refhost/core|refhost/workbench|tests/|benchmarks/")
forbid(refhost/workbench "plugin/|operations/|refhost/core|refhost/validator|refhost/runner|tests/|benchmarks/")
forbid(benchmarks "plugin/|operations/|refhost/core|refhost/validator|refhost/runner|refhost/workbench|tests/")
