// Message boxes that no test expected: with nobody to close them they would end the program as hung, and the
// tests behind it with it.
#pragma once

#include <windows.h>

#include <map>

class CUnexpectedBoxes {
public:
    // A box that has been up for `patience` milliseconds was not expected.
    explicit CUnexpectedBoxes(ULONGLONG patience) : m_patience(patience) {}

    // To be called now and then from another thread than `thread`, whose boxes are looked at. Fails the
    // running test with what an unexpected box says, and closes the box by its first button.
    void Look(DWORD thread);

private:
    ULONGLONG m_patience;
    std::map<HWND, ULONGLONG> m_since;  // the boxes that are up, with the tick at which each was first seen
};
