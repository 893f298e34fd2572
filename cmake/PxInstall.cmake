# The package of the project, that find_package() finds: every path in it is relative to itself.

include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/${PROJECT_NAME}Config.cmake.in ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake
    INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(EXPORT ${PROJECT_NAME}Targets NAMESPACE Px:: DESTINATION ${package} COMPONENT Devel)
install(FILES
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    DESTINATION ${package} COMPONENT Devel)

# The same for pkg-config, which could not name the libraries of another platform.
if(PX_PLATFORM STREQUAL "bundled")
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
        OUTPUT_VARIABLE prefix)
    string(REPLACE "${CMAKE_INSTALL_PREFIX}/" "\${prefix}/" libdir "${CMAKE_INSTALL_FULL_LIBDIR}")
    string(REPLACE "${CMAKE_INSTALL_PREFIX}/" "\${prefix}/" includedir "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${PROJECT_NAME}.pc.in ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Devel)
endif()

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall
        COMMAND ${CMAKE_COMMAND} -DBINARY_DIR=${PROJECT_BINARY_DIR} -DPROJECT=${PROJECT_NAME}
            -P ${CMAKE_CURRENT_LIST_DIR}/PxUninstall.cmake)
endif()
