#include "FullVolume.h"

#include <windows.h>

#include <algorithm>

// The import table's entry, by the name under which the import library declares it.
extern "C" BOOL(WINAPI* __imp_WriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);

namespace {

std::size_t roomLeft = 0;
decltype(__imp_WriteFile) systemWrite;

// As the system does: what still fits is written, and only a write that finds no room at all fails.
BOOL WINAPI WriteIntoRoom(HANDLE file, LPCVOID data, DWORD size, LPDWORD written, LPOVERLAPPED overlapped) {
    if (roomLeft == 0) {
        *written = 0;
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    const auto fitting = static_cast<DWORD>(std::min<std::size_t>(size, roomLeft));
    roomLeft -= fitting;
    return systemWrite(file, data, fitting, written, overlapped);
}

void SetWrite(decltype(__imp_WriteFile) function) {
    DWORD protection = 0;
    VirtualProtect(&__imp_WriteFile, sizeof(__imp_WriteFile), PAGE_READWRITE, &protection);
    __imp_WriteFile = function;
    VirtualProtect(&__imp_WriteFile, sizeof(__imp_WriteFile), protection, &protection);
}

}  // namespace

CFullVolume::CFullVolume(std::size_t room) {
    roomLeft = room;
    systemWrite = __imp_WriteFile;
    SetWrite(WriteIntoRoom);
}

CFullVolume::~CFullVolume() {
    SetWrite(systemWrite);
}
