# Run by CPack on what it is about to pack: Debian wants the change log and the manual pages
# compressed, without a date inside. An ordinary installation keeps them as they are.
find_program(GZIP gzip)
if(NOT GZIP)
    message(FATAL_ERROR "The package needs gzip for its change log and manual pages.")
endif()
file(GLOB_RECURSE a_comprimer "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1"
     "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/changelog")
execute_process(COMMAND ${GZIP} -9n ${a_comprimer} COMMAND_ERROR_IS_FATAL ANY)
