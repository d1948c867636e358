// Where the files of benchmarks lie: in memory. A disk takes much longer, and unevenly, to empty a file that
// was written a moment before, and none of that is a program's time.
#pragma once

namespace tavrin::benchmarks {

inline constexpr const wchar_t* kMemoryFolder = L"Z:\\dev\\shm\\";  // of the system that runs Wine

}  // namespace tavrin::benchmarks
