# Debian wants manual pages compressed, without a time in them. CPack runs this between installing and packing.

file(GLOB manuals ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man1/*.1)
if(manuals)
    execute_process(COMMAND gzip -9nf ${manuals} COMMAND_ERROR_IS_FATAL ANY)
endif()
