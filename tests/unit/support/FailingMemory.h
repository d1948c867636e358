// Lets the test program run out of memory on purpose: its operator new is
// replaced by one that fails after a given number of further allocations.
#pragma once

#include <cstddef>

class CFailingMemory {
public:
    // From the given number of further allocations on, every one throws std::bad_alloc, as long as this
    // object lives.
    explicit CFailingMemory(std::size_t allocationsLeft);
    ~CFailingMemory();
    CFailingMemory(const CFailingMemory&) = delete;
    CFailingMemory& operator=(const CFailingMemory&) = delete;

    // Whether an allocation has failed because of it.
    bool HasFailed() const;
};
