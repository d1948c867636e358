// A function of the system replaced by a test's own, for as long as the object lives.
//
// The entry is the import table's, declared with the name that the import library gives it. In 32-bit
// programs that name contains the size of the function's arguments in bytes:
//
//     extern "C" BOOL(WINAPI* __imp_DeleteFileW)(LPCWSTR) IMPORT_ENTRY(DeleteFileW, 4);
//     const CImportHook hook(__imp_DeleteFileW, FailToDelete);
#pragma once

#include <windows.h>

#ifdef _WIN64
#define IMPORT_ENTRY(function, argumentBytes)
#else
#define IMPORT_ENTRY(function, argumentBytes) __asm__("__imp__" #function "@" #argumentBytes)
#endif

template <typename Function>
class CImportHook {
public:
    CImportHook(Function& entry, Function replacement) : m_entry(entry), m_system(entry) { Set(replacement); }
    ~CImportHook() { Set(m_system); }
    CImportHook(const CImportHook&) = delete;
    CImportHook& operator=(const CImportHook&) = delete;

    // The system's own function.
    Function System() const { return m_system; }

private:
    void Set(Function function) {
        DWORD protection = 0;
        VirtualProtect(&m_entry, sizeof(m_entry), PAGE_READWRITE, &protection);
        m_entry = function;
        VirtualProtect(&m_entry, sizeof(m_entry), protection, &protection);
    }

    Function& m_entry;
    const Function m_system;
};
