// Local memory watched: how many blocks are alive, and what happens when there are none to be had.
#pragma once

#include <cstddef>

// While one lives, this program's local memory functions go through it.
class CLocalMemoryHook {
public:
    CLocalMemoryHook();
    ~CLocalMemoryHook();
    CLocalMemoryHook(const CLocalMemoryHook&) = delete;
    CLocalMemoryHook& operator=(const CLocalMemoryHook&) = delete;

    bool failAlloc = false;
    bool failLock = false;

    int allocated = 0;
    int locked = 0;  // locks not undone
    int freed = 0;
    int alive = 0;
    unsigned flags = 0;        // of the last block
    std::size_t lastSize = 0;  // of the last block
};
