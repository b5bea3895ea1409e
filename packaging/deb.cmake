# `cpack` makes vlk-workbench_VERSION_ARCHITECTURE.deb of what the build installs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vlk-workbench)
set(CPACK_PACKAGE_VENDOR VELTRONIKA)
set(CPACK_PACKAGE_CONTACT VELTRONIKA)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Configure R-7106 trackers and read their telemetry")
set(CPACK_PACKAGE_DESCRIPTION "The workbench reads the configuration of a vehicle tracker, edits it, writes it back and
shows what the tracker took; it shows live and stored telemetry and calibrates fuel
sensors. The command r7106 does the same for many files, without a display.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The toolkit's own words in Russian, and a font where there is none.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, fonts-dejavu-core")
include(CPack)
