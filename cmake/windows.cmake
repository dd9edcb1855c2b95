# The toolchain that cross-builds for Windows on Debian, with the libraries that script/windows-libraries has built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(windows_libraries ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries/installed)
cmake_path(NORMAL_PATH windows_libraries)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${windows_libraries})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${windows_libraries}/lib/pkgconfig)
set(PKG_CONFIG_ARGN --static)

# Windows 10. The compiler's own libraries are linked statically, and two builds of one commit are identical.
set(CMAKE_C_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DWINVER=0x0A00 -D_FILE_OFFSET_BITS=64")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
