#include "tests/windows/itemdlg/FileFault.h"

extern "C" BOOL(WINAPI* __imp_ReadFile)(HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED)
    IMPORT_ENTRY(ReadFile, 20);
extern "C" BOOL(WINAPI* __imp_WriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED)
    IMPORT_ENTRY(WriteFile, 20);

namespace {

FileCall DescribeCall(HANDLE file) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetFinalPathNameByHandleW(file, path.data(), MAX_PATH, 0));
    LARGE_INTEGER position = {};
    SetFilePointerEx(file, {}, &position, FILE_CURRENT);
    return {path.substr(path.rfind(L'\\') + 1), static_cast<std::size_t>(position.QuadPart)};
}

}  // namespace

CFileFault* CFileFault::s_active = nullptr;

CFileFault::CFileFault(EFileOperation operation, std::size_t failing, bool forGood)
    : m_operation(operation),
      m_failing(failing),
      m_forGood(forGood),
      m_readHook(__imp_ReadFile, Read),
      m_writeHook(__imp_WriteFile, Write) {
    s_active = this;
}

CFileFault::~CFileFault() {
    s_active = nullptr;
}

BOOL WINAPI CFileFault::Read(HANDLE file, LPVOID data, DWORD size, LPDWORD read, LPOVERLAPPED overlapped) {
    return !s_active->Fails(FO_READ, file, read, ERROR_CRC) &&
           s_active->m_readHook.System()(file, data, size, read, overlapped);
}

BOOL WINAPI CFileFault::Write(HANDLE file, LPCVOID data, DWORD size, LPDWORD written,
                              LPOVERLAPPED overlapped) {
    return !s_active->Fails(FO_WRITE, file, written, ERROR_DISK_FULL) &&
           s_active->m_writeHook.System()(file, data, size, written, overlapped);
}

bool CFileFault::Fails(EFileOperation operation, HANDLE file, DWORD* done, DWORD error) {
    if (operation != m_operation) {
        return false;
    }
    const std::size_t index = m_calls.size();
    m_calls.push_back(DescribeCall(file));
    if (m_forGood ? index < m_failing : index != m_failing) {
        return false;
    }
    *done = 0;
    SetLastError(error);
    return true;
}
