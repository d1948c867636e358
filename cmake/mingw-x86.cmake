# Cross-compiles for 32-bit Windows.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(mingw_prefix i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
# Real numbers by SSE2, which every supported Windows asks of the processor: each operation rounds to 64 bits as it
# does in the 64-bit module, so both write the same digits into the files. The system aligns a procedure's stack to
# 4 bytes, SSE wants 16.
# The parts of a function that are rarely run stay with the others: where a function that realigns the stack is split,
# gcc describes the frame of the second part wrongly, and an exception that passes it ends the program.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign -fno-reorder-blocks-and-partition")
# For this processor GCC 12 takes the library's own copying of an empty text for one beyond its end.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-array-bounds")
