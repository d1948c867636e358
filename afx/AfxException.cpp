// The framework's exceptions and their texts.
#include "afx/AfxException.h"

#include "afx/afxwin.h"
// After Windows.
#include <shlwapi.h>

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), nullptr};
IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)

CRuntimeClass* CObject::GetRuntimeClass() const {
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    const CRuntimeClass* ancestor = this;
    while (ancestor != nullptr && ancestor != pBaseClass) {
        ancestor = ancestor->m_pBaseClass;
    }
    return ancestor != nullptr;
}

void CException::Delete() {
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) const {
    if (helpContext != nullptr) {
        *helpContext = 0;
    }
    if (maxLength > 0) {
        text[0] = L'\0';
    }
    return FALSE;
}

int CException::ReportError(UINT type, UINT idMessage) {
    TCHAR text[512];
    if (GetErrorMessage(text, 512)) {
        return AfxMessageBox(text, type);
    }
    return idMessage != 0 ? AfxMessageBox(idMessage, type) : AfxMessageBox(L"Error.", type);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) const {
    CException::GetErrorMessage(text, maxLength, helpContext);
    ::lstrcpyn(text, m_message, static_cast<int>(maxLength));
    return m_message[0] != L'\0';
}

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
        case NO_ERROR:
            return none;
        case ERROR_FILE_NOT_FOUND:
            return fileNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_PATHNAME:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return badPath;
        case ERROR_TOO_MANY_OPEN_FILES:
            return tooManyOpenFiles;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return accessDenied;
        case ERROR_INVALID_HANDLE:
            return invalidFile;
        case ERROR_CURRENT_DIRECTORY:
            return removeCurrentDir;
        case ERROR_CANNOT_MAKE:
            return directoryFull;
        case ERROR_SEEK:
        case ERROR_NEGATIVE_SEEK:
        case ERROR_SEEK_ON_DEVICE:
            return badSeek;
        case ERROR_CRC:
        case ERROR_NOT_READY:
        case ERROR_SECTOR_NOT_FOUND:
        case ERROR_WRITE_FAULT:
        case ERROR_READ_FAULT:
        case ERROR_GEN_FAILURE:
            return hardIO;
        case ERROR_SHARING_VIOLATION:
            return sharingViolation;
        case ERROR_LOCK_VIOLATION:
        case ERROR_LOCKED:
            return lockViolation;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return diskFull;
        case ERROR_HANDLE_EOF:
            return endOfFile;
        default:
            return genericException;
    }
}

BOOL CFileException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) const {
    CException::GetErrorMessage(text, maxLength, helpContext);
    CString message = m_strFileName;
    if (!message.IsEmpty()) {
        message += L": ";
    }
    TCHAR reason[256];
    const DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    if (m_lOsError > 0 &&
        ::FormatMessage(flags, nullptr, static_cast<DWORD>(m_lOsError), 0, reason, 256, nullptr) > 0) {
        ::StrTrim(reason, L"\r\n ");
        message += reason;
    } else {
        CString cause;
        cause.Format(L"file error %d.", m_cause);
        message += cause;
    }
    ::lstrcpyn(text, message, static_cast<int>(maxLength));
    return TRUE;
}

void AFXAPI AfxThrowMemoryException() {
    throw new CMemoryException;
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}

void AFXAPI AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName) {
    throw new CFileException(cause, osError, fileName);
}
