// Files of bytes.
#pragma once

#include "afx/AfxException.h"

// An open file. Every failure is thrown as a CFileException*, only Open can also report it by its result.
class CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

    // As documented, an Open that names no sharing shares nothing: while the file is open no other open
    // succeeds, not even in this process, and an Open fails where the file is already open.
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeBinary = 0x8000
    };

    CFile() = default;
    CFile(LPCTSTR fileName, UINT openFlags);  // throws when the file cannot be opened
    ~CFile() override;                        // closes an open file

    // FALSE when the file cannot be opened; error, when given, then has the cause: badPath for a name of
    // MAX_PATH characters or more.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    // Up to count bytes; fewer only at the end of the file, where the result is 0.
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();
    virtual void Close();
    // Closes without a word about errors, and without writing what is still buffered.
    virtual void Abort();
    virtual ULONGLONG GetLength() const;
    operator HANDLE() const { return m_hFile; }

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

private:
    [[noreturn]] void ThrowLastError() const;

    CString m_strFileName;
};
