# Cross-compiles for 32-bit Windows.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(mingw_prefix i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
# Real numbers by SSE2, which every supported Windows asks of the processor: each operation rounds to 64 bits as it
# does in the 64-bit module, so both write the same digits into the files. The system aligns a procedure's stack to
# 4 bytes, SSE wants 16.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
# For this processor GCC 12 takes the library's own copying of an empty text for one beyond its end.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-array-bounds")
