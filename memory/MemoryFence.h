// Keeps std::bad_alloc inside the module. The framework's window procedures catch what derives from its own
// CException; a std::bad_alloc would go on into the system.
#pragma once

#include <afxwin.h>

#include <new>

namespace tavrin::memory {

// Runs the work of a window procedure and gives its result. A std::bad_alloc that it throws becomes the
// framework's CMemoryException.
template <class TWork>
auto FenceMemory(TWork work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

}  // namespace tavrin::memory
