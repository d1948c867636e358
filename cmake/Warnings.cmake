# Links in the warnings that every target of this project is compiled with.
add_library(warnings INTERFACE)
if(MSVC)
  target_compile_options(warnings INTERFACE /W4)
else()
  target_compile_options(warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
endif()
