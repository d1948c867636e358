#include "tests/windows/itemdlg/FullVolume.h"

#include <algorithm>

extern "C" BOOL(WINAPI* __imp_WriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED)
    IMPORT_ENTRY(WriteFile, 20);

CFullVolume* CFullVolume::s_active = nullptr;

CFullVolume::CFullVolume(std::size_t capacity) : m_capacity(capacity), m_hook(__imp_WriteFile, Write) {
    s_active = this;
}

CFullVolume::~CFullVolume() {
    s_active = nullptr;
}

// As the system does: writes as much as fits; only a write to a volume that is already full fails.
BOOL WINAPI CFullVolume::Write(HANDLE file, LPCVOID data, DWORD size, LPDWORD written,
                               LPOVERLAPPED overlapped) {
    if (s_active->m_capacity == 0) {
        *written = 0;
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    const auto fitting = static_cast<DWORD>(std::min<std::size_t>(size, s_active->m_capacity));
    s_active->m_capacity -= fitting;
    return s_active->m_hook.System()(file, data, fitting, written, overlapped);
}
