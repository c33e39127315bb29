# Cross build for 64-bit Windows with Debian's mingw-w64 compilers (the POSIX thread model, for
# std::thread and std::mutex). Programs built here run on Linux under Wine; tests/wine/run_wine.sh
# is the emulator through which ctest starts them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(MV_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${MV_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${MV_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${MV_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${MV_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's own run-time (libstdc++, libgcc, winpthread) is linked statically into every
# program and DLL, so nothing but the project's own DLLs has to sit beside them. A DLL exports
# its own symbols only, not those of the run-time linked into it (each module keeps its copy).
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--exclude-libs,ALL")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -Wl,--exclude-libs,ALL")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tests/wine/run_wine.sh)
