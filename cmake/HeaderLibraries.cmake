# Libraries that are headers alone. Debian keeps them in /usr/include among the build machine's own headers, which a
# cross build must not see as a whole: the build folder gets links to theirs.

# add_header_library(NAME ENTRIES...): an interface library NAME of the files or folders ENTRIES of /usr/include, or of
# utfcpp's own folder in it, the only one that mingw has.
function(add_header_library name)
  set(folder ${CMAKE_BINARY_DIR}/headers/${name})
  file(MAKE_DIRECTORY ${folder})
  foreach(entry ${ARGN})
    find_path(${name}_folder ${entry} PATHS /usr/include PATH_SUFFIXES utf8cpp NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    file(CREATE_LINK ${${name}_folder}/${entry} ${folder}/${entry} SYMBOLIC)
  endforeach()
  add_library(${name} INTERFACE)
  target_include_directories(${name} SYSTEM INTERFACE ${folder})
endfunction()

add_header_library(cli11 CLI)
add_header_library(json nlohmann)
add_header_library(stb stb)
add_header_library(utfcpp utf8 utf8.h)
