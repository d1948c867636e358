# Cross-compiles for Windows with Debian's mingw-w64 (g++, posix threads): mingw-x64.cmake and mingw-x86.cmake
# set the processor and the prefix of the tools.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER ${mingw_prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_prefix}-windres)
set(CMAKE_DLLTOOL ${mingw_prefix}-dlltool)
set(CMAKE_FIND_ROOT_PATH /usr/${mingw_prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
