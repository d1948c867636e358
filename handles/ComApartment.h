// COM on a thread with windows, as a single-threaded apartment: calls of other threads and processes come in
// with the thread's messages.
#pragma once

#include <windows.h>
// Needs the types of windows.h.
#include <objbase.h>

namespace tavrin::handles {

class CComApartment {
public:
    CComApartment() : m_started(SUCCEEDED(CoInitialize(nullptr))) {}
    ~CComApartment() {
        if (m_started) {
            CoUninitialize();
        }
    }
    CComApartment(const CComApartment&) = delete;
    CComApartment& operator=(const CComApartment&) = delete;

private:
    bool m_started;
};

}  // namespace tavrin::handles
