# Schemas and documents. The documents have their places to each other, as their links do; a link to what is installed
# elsewhere is written anew.

# catalog.xml gives each schema a name that is the same everywhere, for XML tools that read it: XML_CATALOG_FILES.
set(schemas docs/catalog.xml docs/product-file.xsd docs/theme-file.xsd)
install(FILES ${schemas} DESTINATION ${CMAKE_INSTALL_DATADIR}/xml/PxProductProperties COMPONENT Tools)

install(FILES CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation)
install(DIRECTORY docs examples LICENSES DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
    REGEX "/(catalog\\.xml|[a-z-]+\\.xsd|file-format\\.md|first-product\\.md|examples/CMakeLists\\.txt)$" EXCLUDE)
foreach(document README.md docs/file-format.md docs/first-product.md)
    cmake_path(GET document PARENT_PATH folder)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DATADIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_DOCDIR}/${folder}
        OUTPUT_VARIABLE data)
    file(READ ${document} text)
    string(REGEX REPLACE "\\]\\((\\.\\./)?data/sample/" "](${data}/PxProductProperties/sample/" text "${text}")
    string(REGEX REPLACE "\\]\\(([a-z-]+\\.xsd)" "](${data}/xml/PxProductProperties/\\1" text "${text}")
    file(WRITE ${PROJECT_BINARY_DIR}/documents/${document} "${text}")
    install(FILES ${PROJECT_BINARY_DIR}/documents/${document} DESTINATION ${CMAKE_INSTALL_DOCDIR}/${folder}
        COMPONENT Documentation)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${document})
endforeach()
