// Counters of what the process holds, to show that a cycle of opening and closing leaves nothing.
#pragma once

#include <iosfwd>

// GDI objects of this process. GetGuiResources where the system has it; under Wine, which does not, the
// entries of the shared handle table that carry this process's id.
int GdiObjectCount();

// Windows of this process, hidden ones and children included.
int WindowCount();

// Blocks that are alive on the host's heap.
long long HeapBlockCount();

// All three at one time:
//
//     const ProcessHoldings before = CountHoldings();
//     ...
//     EXPECT_EQ(CountHoldings(), before);
struct ProcessHoldings {
    int gdiObjects;
    int windows;
    long long heapBlocks;
    bool operator==(const ProcessHoldings&) const = default;
};
ProcessHoldings CountHoldings();

// What GoogleTest shows of them.
void PrintTo(const ProcessHoldings& holdings, std::ostream* output);
