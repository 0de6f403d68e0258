set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
# The posix-threads compilers: the win32 ones of Debian 12 lack parts of the C++20 library.
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# Loaded anywhere, and no data run as code; CMakeLists.txt says why there is no control flow guard.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--dynamicbase,--nxcompat")
# LLVM's linker, in the place of the compiler's own, drops what tells how to unwind code that is left out.
find_program(VANTELLE_LLD ld.lld)
if(VANTELLE_LLD)
    string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -fno-use-linker-plugin -wrapper ${CMAKE_CURRENT_LIST_DIR}/link-with-lld")
endif()
