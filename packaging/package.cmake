# Install rules and the Debian package: cmake --build build --target package
include(GNUInstallDirs)

install(TARGETS orvalis RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/orvalis.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/orvalis.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/org.orvalis.Orvalis.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(EXISTS ${CMAKE_SOURCE_DIR}/docs/guide.md)
    install(FILES docs/guide.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
    install(DIRECTORY docs/images DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.png")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvalis)
set(CPACK_PACKAGE_CONTACT "Orvalis maintainers <maintainers@orvalis.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Cahier de trafic du radioamateur")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Journal de station pour radioamateurs francophones : saisie des contacts,
cahier en pages, recherche, doublons, tri, jumelage, sauvegarde, impression
des pages et des étiquettes QSL, locators, distances et azimuts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
# The libraries are found in the program itself. What Qt loads while it runs has to be named: its
# French texts and the icon's format; the fixed-pitch font of the list and the page view.
find_program(SHLIBDEPS dpkg-shlibdeps)
if(SHLIBDEPS)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation | fonts-dejavu-core, cups-client")
include(CPack)
