# Toolchain: programs for 64-bit Windows, made by MinGW-w64 and tested under Wine where that is found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(triple x86_64-w64-mingw32)
# The variant with POSIX threads, because the other one has no std::thread.
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
# The compiler's runtime goes into each program, so that none needs a library beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Libraries of the machine that builds are of no use; only its programs are.
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(WINE64 wine64 PATHS /usr/lib/wine)
if(WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE64})
endif()
