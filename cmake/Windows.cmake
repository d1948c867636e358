# What every Windows target of this project is compiled and linked with.
enable_language(RC)
add_compile_definitions(UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN WINVER=0x0601
  _WIN32_WINNT=0x0601)
if(MSVC)
  # MFC itself, linked statically; the sources are UTF-8.
  set(CMAKE_MFC_FLAG 1)
  add_compile_options(/utf-8)
else()
  # The runtime's number formats are the standard's, and no DLL of the compiler's is shipped.
  add_compile_definitions(__USE_MINGW_ANSI_STDIO=1)
  add_link_options(-static $<$<CONFIG:Release>:-s>)
endif()
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")
