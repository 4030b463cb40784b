# CMake toolchain: Windows (64 bits) with Debian's mingw-w64, posix threads. What was made for it by
# tools/windows/qt and tools/windows/dependances is found below ORVALIS_WINDOWS, a folder outside
# the tree (tools/windows/commun.sh).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_prefixe x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_prefixe}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_prefixe}-g++-posix)
set(CMAKE_RC_COMPILER ${_prefixe}-windres)
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")

# Windows 10, as Qt asks. What is made here runs in any folder: nothing of the compiler's own is
# left to be found but its three libraries, which the package brings along.
set(CMAKE_C_FLAGS_INIT "-D_WIN32_WINNT=0x0A00")
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00")

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORVALIS_WINDOWS)
if(NOT ORVALIS_WINDOWS)
    set(ORVALIS_WINDOWS "$ENV{ORVALIS_WINDOWS}")
endif()
set(CMAKE_FIND_ROOT_PATH ${ORVALIS_WINDOWS}/prefixe /usr/${_prefixe})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
