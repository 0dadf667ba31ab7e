# The Debian package: `cpack -G DEB --config build/release/CPackConfig.cmake`. The tree
# goes below /opt; manual pages, desktop entry and the names on the path below /usr.
set(CPACK_PACKAGE_NAME tallix-reports-tool)
set(CPACK_PACKAGE_CONTACT "Quillmere Software <support@quillmere.invalid>")
set(CPACK_PACKAGE_VENDOR "Quillmere Software")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Call reports on a telephone exchange's database")
set(CPACK_PACKAGING_INSTALL_PREFIX /opt)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/ArrangePackage.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION comm)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Runs call reports on a database of telephone calls, on screen or unattended.\n It reads MySQL, SQL Server, PostgreSQL, or a database file of its own.")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cron, tdsodbc")

include(CPack)
