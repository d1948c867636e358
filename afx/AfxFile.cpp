// CFile: unbuffered reading and writing of a file's bytes.
#include "afx/AfxFile.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

namespace {

DWORD GetAccess(UINT openFlags) {
    switch (openFlags & 3) {
        case CFile::modeWrite:
            return GENERIC_WRITE;
        case CFile::modeReadWrite:
            return GENERIC_READ | GENERIC_WRITE;
        default:
            return GENERIC_READ;
    }
}

DWORD GetSharing(UINT openFlags) {
    switch (openFlags & 0x70) {
        case CFile::shareDenyWrite:
            return FILE_SHARE_READ;
        case CFile::shareDenyRead:
            return FILE_SHARE_WRITE;
        case CFile::shareDenyNone:
            return FILE_SHARE_READ | FILE_SHARE_WRITE;
        default:
            return 0;
    }
}

DWORD GetCreation(UINT openFlags) {
    if ((openFlags & CFile::modeCreate) == 0) {
        return OPEN_EXISTING;
    }
    return (openFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

}  // namespace

CFile::CFile(LPCTSTR fileName, UINT openFlags) {
    CFileException error;
    if (!CFile::Open(fileName, openFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CFile::~CFile() {
    CFile::Abort();
}

BOOL CFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    CFile::Abort();
    m_strFileName = fileName;
    if (m_strFileName.GetLength() >= MAX_PATH) {
        if (error != nullptr) {
            error->m_cause = CFileException::badPath;
            error->m_lOsError = -1;
            error->m_strFileName = fileName;
        }
        return FALSE;
    }
    m_hFile = ::CreateFile(fileName, GetAccess(openFlags), GetSharing(openFlags), nullptr,
                           GetCreation(openFlags), FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_hFile != INVALID_HANDLE_VALUE) {
        return TRUE;
    }
    if (error != nullptr) {
        error->m_lOsError = static_cast<LONG>(::GetLastError());
        error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
        error->m_strFileName = fileName;
    }
    return FALSE;
}

UINT CFile::Read(void* buffer, UINT count) {
    DWORD done = 0;
    if (count > 0 && !::ReadFile(m_hFile, buffer, count, &done, nullptr)) {
        ThrowLastError();
    }
    return done;
}

void CFile::Write(const void* buffer, UINT count) {
    DWORD done = 0;
    if (count > 0 && !::WriteFile(m_hFile, buffer, count, &done, nullptr)) {
        ThrowLastError();
    }
    if (done != count) {
        AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, m_strFileName);
    }
}

void CFile::Flush() {
    if (m_hFile != INVALID_HANDLE_VALUE && !::FlushFileBuffers(m_hFile)) {
        ThrowLastError();
    }
}

void CFile::Close() {
    const HANDLE file = std::exchange(m_hFile, INVALID_HANDLE_VALUE);
    if (file != INVALID_HANDLE_VALUE && !::CloseHandle(file)) {
        ThrowLastError();
    }
}

void CFile::Abort() {
    const HANDLE file = std::exchange(m_hFile, INVALID_HANDLE_VALUE);
    if (file != INVALID_HANDLE_VALUE) {
        ::CloseHandle(file);
    }
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length)) {
        ThrowLastError();
    }
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::ThrowLastError() const {
    const LONG error = static_cast<LONG>(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(error), error, m_strFileName);
}
