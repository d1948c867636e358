# For a build that only finds out whether a program defines one name in two ways: -Wodr compares what its files keep for
# link-time optimization. Nothing runs, so the compiler optimizes nothing (which would also remove what is to be
# compared), and the linker merges the files without generating code, in a seventh of the time.
set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
string(APPEND CMAKE_CXX_COMPILE_OBJECT " -O0") # after a target's own options
foreach(rule LINK_EXECUTABLE CREATE_SHARED_LIBRARY CREATE_SHARED_MODULE)
  set(CMAKE_CXX_${rule} "<CMAKE_CXX_COMPILER> -r -nostdlib -flto -flinker-output=rel -Wodr -Werror \
<OBJECTS> -o <TARGET> <LINK_LIBRARIES>")
endforeach()
