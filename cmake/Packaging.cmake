include(CMakePackageConfigHelpers)

set(OVI18N_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ovi18n)

install(TARGETS ovi18n ovresource_core EXPORT ovi18nTargets
    LIBRARY DESTINATION ${OVI18N_INSTALL_PLATFORMDIR}
    RUNTIME DESTINATION ${OVI18N_INSTALL_PLATFORMDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES data/lcdata.xml DESTINATION ${OVI18N_INSTALL_BINDIR})

install(EXPORT ovi18nTargets NAMESPACE ovi18n:: DESTINATION ${OVI18N_CMAKE_DIR})
export(EXPORT ovi18nTargets NAMESPACE ovi18n:: FILE ${PROJECT_BINARY_DIR}/ovi18nTargets.cmake)

configure_package_config_file(cmake/ovi18nConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ovi18nConfig.cmake
    INSTALL_DESTINATION ${OVI18N_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ovi18nConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ovi18nConfig.cmake ${PROJECT_BINARY_DIR}/ovi18nConfigVersion.cmake
    DESTINATION ${OVI18N_CMAKE_DIR})

# The .pc file finds its prefix from where it lies, so an install moved with DESTDIR or
# `cmake --install --prefix` still describes itself correctly.
file(RELATIVE_PATH OVI18N_PC_PREFIX_FROM_PCDIR
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" OVI18N_PC_PREFIX_FROM_PCDIR "${OVI18N_PC_PREFIX_FROM_PCDIR}")
configure_file(cmake/ovi18n.pc.in ${PROJECT_BINARY_DIR}/ovi18n.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ovi18n.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
