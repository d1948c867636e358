// The framework's exceptions: thrown as pointers; the code that catches one for good deletes it with Delete.
#pragma once

#include "afx/AfxObject.h"
#include "afx/AfxString.h"

class CException : public CObject {
    DECLARE_DYNAMIC(CException)

    // autoDelete: the object was made with new, so Delete frees it.
    explicit CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {}

    void Delete();
    // Writes at most maxLength code units, final NUL included. FALSE, and an empty text, when the
    // exception has nothing to say.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) const;
    // Shows the text in a message box and returns the button pressed.
    virtual int ReportError(UINT type = MB_OK, UINT idMessage = 0);

private:
    BOOL m_bAutoDelete;
};

// The exceptions that carry nothing but their class.
class CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
    CSimpleException(BOOL autoDelete, LPCTSTR message) : CException(autoDelete), m_message(message) {}
    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) const override;

private:
    LPCTSTR m_message;
};

class CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
    CMemoryException() : CSimpleException(TRUE, L"Out of memory.") {}
};

class CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
    CNotSupportedException() : CSimpleException(TRUE, L"An unsupported operation was attempted.") {}
};

class CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
    CInvalidArgException() : CSimpleException(TRUE, L"Encountered an improper argument.") {}
};

class CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
    CResourceException() : CSimpleException(TRUE, L"A required resource was unavailable.") {}
};

// Ends an operation after the user has already seen the reason.
class CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
    CUserException() : CSimpleException(TRUE, L"") {}
};

class CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    // osError is Windows' error code, or -1 when Windows gave none.
    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr)
        : CException(TRUE), m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

    static int PASCAL OsErrorToException(LONG osError);
    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) const override;

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

[[noreturn]] void AFXAPI AfxThrowMemoryException();
[[noreturn]] void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] void AFXAPI AfxThrowResourceException();
[[noreturn]] void AFXAPI AfxThrowUserException();
[[noreturn]] void AFXAPI AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
