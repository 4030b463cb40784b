# One interface target carries every compiler flag; nothing else sets any.
add_library(orvalis_flags INTERFACE)
target_compile_features(orvalis_flags INTERFACE cxx_std_20)
target_compile_options(orvalis_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       $<$<BOOL:${ORVALIS_WERROR}>:-Werror>)
# GCC 12 sees overlapping copies in std::string concatenation where there are none (bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(orvalis_flags INTERFACE -Wno-restrict)
endif()
target_compile_definitions(orvalis_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
                           QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)
if(ORVALIS_SANITIZE)
    # Instrumented code hides from GCC which variables are set; the sanitizers see those that are not.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(orvalis_flags INTERFACE -Wno-maybe-uninitialized)
    endif()
    target_compile_options(orvalis_flags INTERFACE -fsanitize=address,undefined
                           -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvalis_flags INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
find_program(LLD ld.lld)
if(LLD)
    target_link_options(orvalis_flags INTERFACE -fuse-ld=lld)
endif()
