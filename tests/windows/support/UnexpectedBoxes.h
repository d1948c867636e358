// Message boxes that no test expected: left open, they would end the program as hung, and with it the tests
// that follow.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>

// It looks while a test may be counting the blocks of the heap, so it takes none of them but to report a box.
class CUnexpectedBoxes {
public:
    // A box that has been up for `patience` milliseconds was not expected.
    explicit CUnexpectedBoxes(ULONGLONG patience) : m_patience(patience) {}

    // To be called now and then from another thread than `thread`, whose boxes are looked at. Fails the
    // running test with what an unexpected box says, and closes the box by its first button.
    void Look(DWORD thread);

private:
    struct SeenBox {
        HWND window = nullptr;
        ULONGLONG since = 0;  // the tick at which it was first seen
    };

    // More boxes than that are not up at a time.
    static constexpr std::size_t kMostBoxes = 8;
    using SeenBoxes = std::array<SeenBox, kMostBoxes>;

    static BOOL CALLBACK Collect(HWND window, LPARAM boxes);

    ULONGLONG m_patience;
    SeenBoxes m_seen;  // the boxes that are up
};
