# Links in the warnings that every target of this project is compiled with.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
