# Cross-building for 64-bit Windows with mingw-w64, as Debian packages it. Programs need nothing but the system's own
# libraries. Tests run under Wine, where it is installed.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Not the wrapper of this name: it asks for the 32-bit part in the output of each program.
find_program(KVT_WINE NAMES wine64 PATHS /usr/lib/wine)
if(KVT_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${KVT_WINE}")
endif()
