# The package that find_package(PxProductProperties) finds: every path in it is relative to itself.

include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/PxProductProperties)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/PxProductPropertiesConfig.cmake.in ${PROJECT_BINARY_DIR}/PxProductPropertiesConfig.cmake
    INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PxProductPropertiesConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(EXPORT PxProductPropertiesTargets NAMESPACE Px:: DESTINATION ${package})
install(FILES
    ${PROJECT_BINARY_DIR}/PxProductPropertiesConfig.cmake
    ${PROJECT_BINARY_DIR}/PxProductPropertiesConfigVersion.cmake
    DESTINATION ${package})
