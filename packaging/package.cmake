# Install rules and the Debian package: cmake --preset paquet && cmake --build --preset paquet
include(GNUInstallDirs)

# The version is the project's. What carries it in its own text must agree.
file(READ packaging/org.orvalis.Orvalis.metainfo.xml metainfo)
file(READ packaging/changelog changements_debian)
file(READ CHANGELOG.md changements)
if(NOT metainfo MATCHES "<release version=\"${PROJECT_VERSION}\"" OR
   NOT changements_debian MATCHES "^orvalis \\(${PROJECT_VERSION}\\)" OR
   NOT changements MATCHES "\n## ${PROJECT_VERSION}\n")
    message(FATAL_ERROR "Version ${PROJECT_VERSION} is missing in CHANGELOG.md, packaging/changelog "
                        "or the metainfo.")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md packaging/changelog
             packaging/org.orvalis.Orvalis.metainfo.xml)

install(TARGETS orvalis dbOrvalis Chronel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/orvalis.desktop packaging/orvalis-exemple.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/orvalis.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/org.orvalis.Orvalis.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(programme orvalis dbOrvalis Chronel orvalis-exemple)
    install(FILES packaging/${programme}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES packaging/${programme}.fr.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/fr/man1
            RENAME ${programme}.1)
endforeach()
install(FILES CHANGELOG.md docs/guide.md docs/formats.md packaging/copyright packaging/changelog
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The sample logbook and its launcher, which copies it once for each user.
install(PROGRAMS packaging/orvalis-exemple DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${exemple}/Orvalis DESTINATION ${CMAKE_INSTALL_DATADIR}/orvalis/exemple)

# The guide for a browser too. The program needs no converter: F1 shows the text itself.
foreach(essai /usr/bin/python3 python3)
    execute_process(COMMAND ${essai} -c "import markdown" RESULT_VARIABLE absent OUTPUT_QUIET
                    ERROR_QUIET)
    if(absent EQUAL 0)
        set(python_markdown ${essai})
        break()
    endif()
endforeach()
if(python_markdown)
    set(guide_html ${CMAKE_BINARY_DIR}/guide.html)
    add_custom_command(OUTPUT ${guide_html}
        COMMAND ${python_markdown} ${CMAKE_SOURCE_DIR}/packaging/guide_html.py
                ${CMAKE_SOURCE_DIR}/docs/guide.md ${guide_html}
        DEPENDS docs/guide.md packaging/guide_html.py VERBATIM)
    add_custom_target(orvalis_guide_html ALL DEPENDS ${guide_html})
    install(FILES ${guide_html} DESTINATION ${CMAKE_INSTALL_DOCDIR})
else()
    message(STATUS "python3-markdown is missing: what is installed will hold the guide as Markdown, "
                   "not as HTML.")
endif()
install(DIRECTORY docs/images DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.png")

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
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/packaging/compresser.cmake)
# Whatever the umask of who builds it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
# The libraries are found in the program itself. What Qt loads while it runs has to be named: its
# French texts and the icon's format. The fonts are the fixed-pitch one of list and page view and
# the look-alike of the labels' handwriting; others take their place where they are missing.
find_program(SHLIBDEPS dpkg-shlibdeps)
if(SHLIBDEPS)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-liberation, fonts-comic-neue, cups-client, qt6-wayland, polkitd")
include(CPack)
