# What needs Qt: the libraries of the window, the program and its companions.

# The controls of our own and what draws pages in them, by themselves for the windows of the
# companions.
add_library(orvalis_widgets STATIC ${widgets_sources})
target_link_libraries(orvalis_widgets PUBLIC orvalis_carte Qt6::Widgets)
set_target_properties(orvalis_widgets PROPERTIES AUTOMOC ON)

if(WIN32)
    set(icone packaging/windows/orvalis.qrc)
    # The tool is that of another system, and may pack what this Qt cannot unpack.
    set(CMAKE_AUTORCC_OPTIONS --no-zstd)
    set(options_guide OPTIONS --no-zstd)
else()
    set(icone packaging/orvalis.qrc)
endif()

# On Windows a program has no console, and carries icon, version and what it asks of the system.
function(habiller_programme nom description)
    set_target_properties(${nom} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
    if(WIN32)
        set(nom_programme ${nom})
        set(description_programme ${description})
        configure_file(packaging/windows/programme.rc.in ${nom}.rc @ONLY)
        target_sources(${nom} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${nom}.rc)
        set_target_properties(${nom} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
endfunction()

add_library(orvalis_ui STATIC ${qt_sources} ${icone})
target_link_libraries(orvalis_ui PUBLIC orvalis_widgets Qt6::PrintSupport)
# The guide that F1 opens: the same text and pictures as on paper.
file(GLOB guide_images CONFIGURE_DEPENDS docs/images/*.png)
qt_add_resources(orvalis_ui guide PREFIX /guide BASE docs FILES docs/guide.md docs/formats.md
                 ${guide_images} ${options_guide})
target_compile_definitions(orvalis_ui PUBLIC ORVALIS_VERSION="${PROJECT_VERSION}")
set_target_properties(orvalis_ui PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)

add_executable(orvalis src/ui/main.cpp)
target_link_libraries(orvalis PRIVATE orvalis_ui)
habiller_programme(orvalis "Cahier de trafic")

# The companion program that sets the clock: its window, the program.
add_library(orvalis_chronel STATIC ${chronel_sources})
target_link_libraries(orvalis_chronel PUBLIC orvalis_chronel_regles orvalis_widgets)
if(NOT WIN32)
    target_link_libraries(orvalis_chronel PUBLIC Qt6::DBus)
endif()
target_compile_definitions(orvalis_chronel PUBLIC ORVALIS_VERSION="${PROJECT_VERSION}")
set_target_properties(orvalis_chronel PROPERTIES AUTOMOC ON AUTOUIC ON)

add_executable(Chronel src/compagnons/chronel/main.cpp ${icone})
target_link_libraries(Chronel PRIVATE orvalis_chronel)
set_target_properties(Chronel PROPERTIES AUTORCC ON)
habiller_programme(Chronel "Mise à l'heure")

add_library(orvalis_db_fenetre STATIC ${db_fenetre_sources})
target_link_libraries(orvalis_db_fenetre PUBLIC orvalis_db_orvalis orvalis_ui)
set_target_properties(orvalis_db_fenetre PROPERTIES AUTOMOC ON)

add_executable(dbOrvalis src/compagnons/db_orvalis/fenetre/main.cpp)
target_link_libraries(dbOrvalis PRIVATE orvalis_db_fenetre)
habiller_programme(dbOrvalis "Export et import du cahier")
# The same on a console: typed there without an ending, its name is the first that is found.
if(WIN32)
    add_executable(dbOrvalis_console src/compagnons/db_orvalis/fenetre/main.cpp)
    target_link_libraries(dbOrvalis_console PRIVATE orvalis_db_fenetre)
    habiller_programme(dbOrvalis_console "Export et import du cahier")
    set_target_properties(dbOrvalis_console PROPERTIES WIN32_EXECUTABLE OFF OUTPUT_NAME dbOrvalis
                          SUFFIX .com)
endif()
