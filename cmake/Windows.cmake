# What every Windows target of this project is compiled and linked with.
enable_language(RC)
add_compile_definitions(UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN
  WINVER=0x0601 _WIN32_WINNT=0x0601 __USE_MINGW_ANSI_STDIO=1)
# No DLL of the compiler's is shipped: its runtime is linked in.
add_link_options(-static $<$<CONFIG:Release>:-s>)
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")
