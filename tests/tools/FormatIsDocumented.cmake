# Compares the schemas and the tables of the documentation with what pxvocabulary prints.

function(compare file)
    set(written ${SCRATCH}/${file})
    execute_process(COMMAND ${PXVOCABULARY} ${ARGN} OUTPUT_FILE ${written} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${written} ${DOCS}/${file}
        RESULT_VARIABLE differs OUTPUT_QUIET ERROR_QUIET)
    if(differs)
        list(JOIN ARGN " " arguments)
        message(SEND_ERROR "docs/${file} is not what \"pxvocabulary ${arguments}\" prints now: "
            "copy ${written} to ${DOCS}/${file}")
    endif()
endfunction()

compare(product-file.xsd xsd product)
compare(theme-file.xsd xsd theme)
compare(file-format.md tables ${DOCS}/file-format.md)
