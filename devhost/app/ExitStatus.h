// DevHost's exit statuses. 4 is that of the checking allocator (devhost/alloc/HeapBlock.h).
#pragma once

namespace devhost {

inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitCrashed = 3;

}  // namespace devhost
