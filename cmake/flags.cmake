# One interface target carries every compiler flag; nothing else sets any.
add_library(orvalis_flags INTERFACE)
target_compile_features(orvalis_flags INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(orvalis_flags INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus)
else()
    target_compile_options(orvalis_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                           $<$<BOOL:${ORVALIS_WERROR}>:-Werror>)
endif()
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

# What Debian asks of its packages; a preset of its own, since sanitizers and fuzzers have theirs.
if(ORVALIS_HARDENING)
    include(CheckPIESupported)
    check_pie_supported()
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    target_compile_options(orvalis_flags INTERFACE -fstack-protector-strong -fstack-clash-protection
                           -Wformat -Werror=format-security -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_link_options(orvalis_flags INTERFACE -Wl,-z,relro -Wl,-z,now)
endif()

if(WIN32)
    # What the headers of the system would define beside what is asked of them.
    target_compile_definitions(orvalis_flags INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
    if(NOT ORVALIS_QT AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_link_options(orvalis_flags INTERFACE -static) # runs where it was made
    endif()
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
find_program(LLD ld.lld)
if(LLD AND NOT WIN32)
    target_link_options(orvalis_flags INTERFACE -fuse-ld=lld)
endif()
