// What a process holds, counted: the same before and after many calls.
#pragma once

#include <cstddef>

struct ProcessState {
    // As things stand now. `liveBlocks` is the module's heap's own count.
    static ProcessState Now(std::size_t liveBlocks);

    std::size_t heapBlocks = 0;  // the module's
    int gdiObjects = 0;
    int windows = 0;  // the USER objects that can be counted everywhere
    int threads = 0;
    int handles = 0;  // open files and all other objects of the kernel
};
