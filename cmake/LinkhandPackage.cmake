# The Debian package, written by "cpack -G DEB" in the build tree into packages/.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME linkhand)
set(CPACK_PACKAGE_VENDOR "The Linkhand developers")
set(CPACK_PACKAGE_CONTACT "The Linkhand developers <developers@linkhand.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "connection manager for mobile broadband with a phonebook")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Shows the contacts of the PC, of the SIM or UIM card and of the mobile-broadband device,
arranges them in groups, finds them, copies them between the memories, imports and
exports them, and starts calls and messages.
.
The command pbctl reaches the same contacts without a window.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION comm)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# What the linker knows of. Qt's display plug-in comes with its library of windows.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${LINKHAND_LIBRARY_OUTPUT})
# What it does not: the texts of Qt's own dialogs, what finds a modem by itself, and letters for every name.
if(LINKHAND_QT EQUAL 5)
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, modemmanager")
elseif(LINKHAND_QT EQUAL 6)
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, modemmanager")
endif()
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-core, fonts-noto-cjk, vdirsyncer, libsecret-tools")

include(CPack)
