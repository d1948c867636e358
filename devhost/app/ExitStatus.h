// How DevHost ends. Status 4 is the checking allocator's (see HeapBlock.h there).
#pragma once

inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitCrashed = 3;
