# The packages of Debian, one for each install component: "cpack" in the build directory makes them (make packages).

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pxproductproperties)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "properties of photo products: pages, sizes, spines, variants")
set(CPACK_PACKAGE_CONTACT "${PX_PACKAGE_CONTACT}")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(CONFIGURE OUTPUT packages/changelog @ONLY CONTENT
"@CPACK_PACKAGE_NAME@ (@PROJECT_VERSION@) unstable; urgency=medium

  * Release @PROJECT_VERSION@: CHANGELOG.md of libpxproductproperties-doc says what is new.

 -- @PX_PACKAGE_CONTACT@  @date@
")
execute_process(COMMAND gzip -9nf ${CMAKE_CURRENT_BINARY_DIR}/packages/changelog COMMAND_ERROR_IS_FATAL ANY)
# What REUSE reads is a file of Debian already; only the texts of the licences are missing.
file(READ ${PROJECT_SOURCE_DIR}/.reuse/dep5 copyright)
file(GLOB licences ${PROJECT_SOURCE_DIR}/LICENSES/*.txt)
foreach(licence IN LISTS licences)
    cmake_path(GET licence STEM LAST_ONLY name)
    file(READ ${licence} text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "\n\n+" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text "${text}")
    string(APPEND copyright "\nLicense: ${name}\n ${text}\n")
endforeach()
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/copyright "${copyright}")
set(library libpxproductproperties${PROJECT_VERSION_MAJOR})
# A trigger calls ldconfig. CPack leaves its own call out only if there are scripts, which have nothing else to do, and
# lintian wants to know why they are empty.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/triggers "activate-noawait ldconfig\n")
foreach(script postinst postrm)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/${script} "#!/bin/sh\nset -e\n")
endforeach()
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/overrides
    "# With these scripts ldconfig is called by a trigger only.\n${library}: maintainer-script-empty\n")
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packages/overrides RENAME ${library} COMPONENT Runtime
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides)
set(scripts triggers postinst postrm)
list(TRANSFORM scripts PREPEND ${CMAKE_CURRENT_BINARY_DIR}/packages/)

set(about "Each product that can be ordered is described by a file. A library answers\n\
applications what it says; a command shows, draws, compares and checks it for\n\
those who write it.")
set(CPACK_COMPONENTS_ALL "")
function(px_package component name section contents)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${about}\n\nThis package has ${contents}." PARENT_SCOPE)
    while(ARGN)
        list(POP_FRONT ARGN variable value)
        set(CPACK_DEBIAN_${key}_PACKAGE_${variable} "${value}" PARENT_SCOPE)
    endwhile()
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} PARENT_SCOPE)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packages/copyright ${CMAKE_CURRENT_BINARY_DIR}/packages/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

px_package(Runtime ${library} libs "the library" SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${scripts})
px_package(Devel libpxproductproperties-dev libdevel "what is needed to build applications"
    DEPENDS "qtbase5-dev (>= 5.15)")
if(PX_BUILD_TOOLS)
    px_package(Tools pxproductproperties-tools utils "the command for authors of product files" SHLIBDEPS ON
        SUGGESTS "pxproductproperties-sample, libpxproductproperties-doc")
endif()
if(PX_INSTALL_SAMPLE)
    px_package(Sample pxproductproperties-sample text "the sample catalogue" ARCHITECTURE all)
endif()
px_package(Documentation libpxproductproperties-doc doc "the documents, the reference and the examples"
    ARCHITECTURE all)

set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PxPackedManuals.cmake)
include(CPack)
cpack_add_component(Runtime)
cpack_add_component(Devel DEPENDS Runtime)
cpack_add_component(Tools DEPENDS Runtime)
cpack_add_component(Sample)
cpack_add_component(Documentation)
