# For Windows, from elsewhere: LLVM's compiler and linker with the libraries of MinGW-w64 and GCC. Together they leave out
# more than GCC can, as they see the program as a whole.
set(CMAKE_SYSTEM_NAME Windows)
set(target ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${target})
set(CMAKE_CXX_COMPILER_TARGET ${target})
set(CMAKE_RC_COMPILER ${target}-windres)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# The posix-threads libraries: the win32 ones of Debian 12 lack parts of the C++20 library. Clang doesn't find them by
# itself; what it must not define anew is what the library has compiled.
file(GLOB gcc /usr/lib/gcc/${target}/*-posix)
set(headers ${gcc}/include/c++)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${headers} -isystem ${headers}/${target} -isystem ${headers}/backward -D__GXX_TYPEINFO_EQUALITY_INLINE=0")
# Loaded anywhere, and no data run as code; CMakeLists.txt says why there is no control flow guard. GCC's start-up code
# tells the unwinder of the exceptions of 32-bit programs.
set(linking "-static -fuse-ld=lld -B${gcc} -L${gcc} -lpthread -Wl,--dynamicbase,--nxcompat")
if(CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
    string(APPEND linking ",--high-entropy-va")
endif()
set(CMAKE_EXE_LINKER_FLAGS_INIT ${linking})
set(CMAKE_SHARED_LINKER_FLAGS_INIT ${linking})
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
