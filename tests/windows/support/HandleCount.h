// Counters of what the process holds, to show that a cycle of opening and closing leaves nothing.
#pragma once

// GDI objects of this process. GetGuiResources where the system has it; under Wine, which does not, the
// entries of the shared handle table that carry this process's id.
int GdiObjectCount();

// Windows of this process, hidden ones and children included.
int WindowCount();

// Blocks that are alive on the host's heap.
long long HeapBlockCount();
