# Run by CPack before it makes the packages of what it has installed: man pages and change lists are
# compressed, as Debian wants them, and programs look for libraries where the system does.
file(GLOB_RECURSE documents
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/changelog.Debian ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/op*.1)
foreach(document IN LISTS documents)
    execute_process(COMMAND gzip -9 --no-name ${document} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(GLOB_RECURSE binaries
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/oprun*
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/opworkbench
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/libTextOperPlugin.so)
list(FILTER binaries INCLUDE REGEX "/(bin|libexec|lib)/")
foreach(binary IN LISTS binaries)
    execute_process(COMMAND chrpath --delete ${binary} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
