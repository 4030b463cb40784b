# What the folder of the program on Windows holds, but for the libraries of others and the guide as
# HTML, which tools/windows/paquet adds.
if(ORVALIS_QT)
    install(TARGETS orvalis Chronel dbOrvalis dbOrvalis_console RUNTIME DESTINATION .)
endif()
install(FILES CHANGELOG.md docs/guide.md docs/formats.md docs/windows.md DESTINATION doc)
install(FILES packaging/copyright DESTINATION licences)
