// The library that writes PNG, compiled once. With the sanitizers it is compiled without them
// (CMakeLists.txt): it is not this project's code, and checking every byte that it compresses takes most of
// the time of tests that draw pictures.
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>
