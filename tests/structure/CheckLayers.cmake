# Fails when a folder includes something of a folder it must not know. The arrows of the project:
# plugin -> operations -> operations/common -> host, and refhost -> host; benchmarks know the host and
# refhost/engine, tests may know all. Within the workbench see below.
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
# The outside plug-in stands on what is installed alone.
forbid(examples/plugin "plugin/|operations/|refhost/|tests/|benchmarks/|host/")
forbid(benchmarks "plugin/|operations/|refhost/core|refhost/validator|refhost/runner|refhost/workbench|tests/")

# The folders of the workbench, from what all share to the panels, which do not know each other. What
# shows a run is apart from the run itself, in the same folder.
set(run_panels "run/(Findings|Log|Operands|RunActions|RunChronicle|WarningPlace)")
function(forbid_in_workbench folder)
    list(JOIN ARGN "|refhost/workbench/" others)
    forbid(refhost/workbench/${folder} "refhost/workbench/${others}")
endfunction()
set(panels catalog/ editor/ files/ options/ steps/ variables/ ${run_panels})
set(window "window/(MainWindow|ViewMenu|StatusLine|EditActions|AboutText)")
forbid_in_workbench(values document/ edits/ library/ look/ run/ settings/ window/ ${panels})
forbid_in_workbench(settings document/ edits/ library/ look/ run/ values/ window/ ${panels})
forbid_in_workbench(look document/ edits/ library/ run/ window/ ${panels})
forbid_in_workbench(document edits/ look/ run/ window/ ${panels})
forbid_in_workbench(library edits/ look/ run/ window/ ${panels})
forbid_in_workbench(edits look/ ${window} ${panels})
forbid_in_workbench(run edits/ catalog/ editor/ files/ options/ steps/ variables/ ${window})
foreach(panel catalog editor files steps variables)
    set(others ${panels})
    list(REMOVE_ITEM others ${panel}/)
    forbid_in_workbench(${panel} ${window} ${others})
endforeach()
forbid_in_workbench(window options/)
