# Cross-compiles for 32-bit Windows.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(mingw_prefix i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
# Floating-point arithmetic uses SSE2, which every supported Windows requires: each operation rounds to 64 bits as in
# the 64-bit module, so both write the same digits into the files. The system calls window procedures with a stack that
# is aligned to 4 bytes only; SSE needs 16.
# Rarely executed parts of a function are not split off: when a function that realigns the stack is split, gcc describes
# the frame of the second part wrongly, and an exception that passes through it ends the program.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign -fno-reorder-blocks-and-partition")
# For this target GCC 12 mistakes the standard library's copying of an empty string for an out-of-bounds access.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-array-bounds")
