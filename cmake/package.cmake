# The Debian package of the native programs, made by CPack from what the rooms install. `scripts/release` fills
# build/package-docs/ with the licence, the changes and the guide before.
if(WIN32 OR VANTELLE_FUZZ OR VANTELLE_SANITIZE)
    return()
endif()

include(GNUInstallDirs)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/package-docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} OPTIONAL)
# An installation takes what was built, and builds neither tests nor benchmarks for it.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

# All that the package holds: `cmake --build --preset native-release --target package-contents`.
add_custom_target(package-contents)
foreach(part vantelle-cli cli-documents vantelle)
    if(TARGET ${part})
        add_dependencies(package-contents ${part})
    endif()
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantelle)
set(CPACK_PACKAGE_CONTACT "The Vantelle developers <developers@vantelle.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor of the identification data (EDID) of monitors")
set(CPACK_PACKAGE_DESCRIPTION "Vantelle shows and edits the EDID that monitors and televisions report to a computer:
resolutions, timings, audio, HDR and all else that its blocks say. It stores what was changed as an override, without
touching the monitor. vantelle-cli does the same for scripts and for rescue.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without them it works in part: on X11 alone, and saves only what it is told to on the command line.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "pkexec, qt6-wayland")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
