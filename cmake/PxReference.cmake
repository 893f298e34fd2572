# The reference: what the public headers say, as pages for a browser, as .qch for Qt Assistant and Qt Creator, and as tag
# file for the reference of an application. The target PxReference, a part of "all" for packages only, writes it into
# the build directory; what is there is installed.

find_program(PX_DOXYGEN doxygen)
find_program(PX_QHELPGENERATOR qhelpgenerator)
mark_as_advanced(PX_DOXYGEN PX_QHELPGENERATOR)
if(NOT PX_DOXYGEN OR NOT PX_QHELPGENERATOR)
    if(PX_PACKAGES)
        message(FATAL_ERROR "PX_PACKAGES needs doxygen and qhelpgenerator, which write the reference: install Debian's "
            "doxygen and qhelpgenerator-qt5.")
    endif()
    message(STATUS "Without doxygen and qhelpgenerator there is no target PxReference")
    return()
endif()

set(reference ${PROJECT_BINARY_DIR}/reference)
set(input "")
set(bases "")
foreach(library PxTemplateClasses PxCore PxXML PxProductBase PxProductProperties)
    if(TARGET ${library})
        get_target_property(headers ${library} HEADER_SET)
        get_target_property(directories ${library} HEADER_DIRS)
        list(FILTER headers EXCLUDE REGEX "Export\\.h$")
        list(APPEND input ${headers})
        list(APPEND bases ${directories})
    endif()
endforeach()
list(APPEND bases ${PROJECT_SOURCE_DIR}/docs)
foreach(page which-class tutorial architecture checks compatibility drawings file-format first-product logging migration
        performance platform pxcatalogue)
    if(EXISTS ${PROJECT_SOURCE_DIR}/docs/${page}.md)
        list(APPEND input ${PROJECT_SOURCE_DIR}/docs/${page}.md)
    endif()
endforeach()

# Links to Qt's pages, if its tag files are installed; Debian has them in qtbase5-doc-dev.
set(tags "")
foreach(module qtcore qtgui qtxml)
    find_file(PX_TAGS_${module} ${module}.tags PATHS /usr/share/qt5/doc PATH_SUFFIXES ${module})
    mark_as_advanced(PX_TAGS_${module})
    if(PX_TAGS_${module})
        list(APPEND tags "${PX_TAGS_${module}}=https://doc.qt.io/qt-5")
    endif()
endforeach()

foreach(list input bases tags)
    list(TRANSFORM ${list} REPLACE ".+" "\"\\0\"")
    list(JOIN ${list} " \\\n    " reference_${list})
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
if(PX_PACKAGES)
    set(all ALL)
endif()
add_custom_target(PxReference ${all}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${reference}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${reference}
    COMMAND ${PX_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile
    COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/PxReferenceEnumerators.sh ${reference}/html
    COMMAND sed -i s|<path>${PROJECT_SOURCE_DIR}/|<path>| ${reference}/PxProductProperties.tags
    COMMENT "Writing the reference into ${reference}"
    VERBATIM)
if(PX_INSTALL)
    install(DIRECTORY ${reference} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation OPTIONAL)
endif()
