# The installed CMake package (find_package(ZARSystem CONFIG) gives ZARSystem::ZARSystem) and
# the pkg-config file.

include(CMakePackageConfigHelpers)

set(ZARSYS_CMAKECONFIG_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ZARSystem")

install(EXPORT ZARSystemTargets
    FILE ZARSystemTargets.cmake
    NAMESPACE ZARSystem::
    DESTINATION "${ZARSYS_CMAKECONFIG_INSTALL_DIR}"
)

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/ZARSystemConfig.cmake.in"
    "${CMAKE_CURRENT_BINARY_DIR}/ZARSystemConfig.cmake"
    INSTALL_DESTINATION "${ZARSYS_CMAKECONFIG_INSTALL_DIR}"
)
write_basic_package_version_file(
    "${CMAKE_CURRENT_BINARY_DIR}/ZARSystemConfigVersion.cmake"
    VERSION ${PROJECT_VERSION}
    COMPATIBILITY SameMajorVersion
)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/ZARSystemConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/ZARSystemConfigVersion.cmake"
    DESTINATION "${ZARSYS_CMAKECONFIG_INSTALL_DIR}"
)

# The .pc file finds its prefix from its own location, so that an installation moved with
# cmake --install --prefix stays usable.
set(ZARSYS_PKGCONFIG_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH ZARSYS_PKGCONFIG_TO_PREFIX
    "/prefix/${ZARSYS_PKGCONFIG_INSTALL_DIR}" "/prefix")
string(REGEX REPLACE "/$" "" ZARSYS_PKGCONFIG_TO_PREFIX "${ZARSYS_PKGCONFIG_TO_PREFIX}")
configure_file(
    "${CMAKE_CURRENT_LIST_DIR}/ZARSystem.pc.in"
    "${CMAKE_CURRENT_BINARY_DIR}/ZARSystem.pc"
    @ONLY
)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/ZARSystem.pc"
    DESTINATION "${ZARSYS_PKGCONFIG_INSTALL_DIR}"
)
