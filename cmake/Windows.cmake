# What every Windows target of this project is compiled and linked with.
enable_language(RC)
add_compile_definitions(UNICODE _UNICODE NOMINMAX STRICT WIN32_LEAN_AND_MEAN WINVER=0x0601
  _WIN32_WINNT=0x0601)
if(MSVC)
  # MFC itself, as a DLL, like CMake's default for the C runtime; the sources are UTF-8.
  set(CMAKE_MFC_FLAG 2)
  add_compile_definitions(_AFXDLL)
  add_compile_options(/utf-8)
else()
  # The runtime's number formats are the standard's, and no DLL of the compiler's is shipped.
  add_compile_definitions(__USE_MINGW_ANSI_STDIO=1)
  add_link_options(-static $<$<CONFIG:Release>:-s>)
  # The same sources give the same bytes, wherever and whenever they are built.
  add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
  add_link_options(-Wl,--no-insert-timestamp)
  # The system may load a program anywhere, and runs no data.
  add_link_options(-Wl,--dynamicbase,--nxcompat)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-Wl,--high-entropy-va)
  endif()
endif()
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")

# add_text_module(TARGET SCRIPT): a resource module from a string table script; it has no code.
function(add_text_module target script)
  add_library(${target} MODULE ${script})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  if(MSVC)
    target_link_options(${target} PRIVATE /NOENTRY)
  else()
    target_link_options(${target} PRIVATE -nostdlib -Wl,--entry=0)
  endif()
endfunction()
