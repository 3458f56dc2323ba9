# Run by CPack before it makes the packages: man pages and change lists are compressed there, as
# Debian wants them.
file(GLOB_RECURSE documents
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/changelog.Debian
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/man1/*.1)
foreach(document IN LISTS documents)
    execute_process(COMMAND gzip -9 --no-name ${document} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
