// Files: CFile reads and writes bytes, CStdioFile lines of text.
#pragma once

#include <memory>

#include "afx/AfxException.h"

// An open file. Every failure is thrown as a CFileException*, only Open can also report it by its result.
class CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

    // As documented, an Open that names no sharing shares nothing: while the file is open nobody else,
    // this process included, can open it, and an Open fails where somebody has it open.
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };

    CFile() = default;
    CFile(LPCTSTR fileName, UINT openFlags);  // throws when the file cannot be opened
    ~CFile() override;                        // closes an open file

    // FALSE when the file cannot be opened; error, when given, then tells why.
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

protected:
    [[noreturn]] void ThrowLastError() const;

    CString m_strFileName;
};

class CAfxTextCodec;

// A text file, buffered in both directions. An operation that throws leaves nothing in the buffer: what was
// written before it is in the file, and closing writes nothing more.
//
// Line ends: CR LF and LF are read as line ends, a CR that no LF follows is a character like any other;
// LF is written as CR LF. A line may have any length. NUL and 0x1A are characters like any other, and
// nothing but the end of the file ends it.
//
// Characters are converted by the C runtime's locale as it is when the file is opened. In the "C" locale
// a byte is the code unit of the same number. In any other one, bytes that the locale cannot convert there
// and back become code units 0xDC00 + byte, and such units are written as that byte again, so that every
// byte survives being read and written. Writing a character that the locale cannot express is an error.
class CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)

    CStdioFile();
    CStdioFile(LPCTSTR fileName, UINT openFlags);  // throws when the file cannot be opened
    ~CStdioFile() override;                        // closes an open file; errors are lost, so Close first

    // modeRead or modeWrite, never both; typeBinary is refused with CNotSupportedException*.
    BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr) override;
    // The next line without its line end; FALSE at the end of the file. A last line without a line end is
    // a line if it holds a character.
    virtual BOOL ReadString(CString& line);
    // The text up to its first NUL.
    virtual void WriteString(LPCTSTR text);
    // Refused with CNotSupportedException*: text is read by lines.
    UINT Read(void* buffer, UINT count) override;
    // Characters already converted to bytes, NULs among them; LF is written as CR LF here too.
    void Write(const void* buffer, UINT count) override;
    void Flush() override;
    // Throws when what was buffered cannot be written; the file is closed even then.
    void Close() override;
    void Abort() override;

private:
    void Put(const char* bytes, size_t count);
    bool FillBuffer();

    std::unique_ptr<CAfxTextCodec> m_codec;
    std::string m_buffer;   // reading: the bytes read ahead; writing: the bytes not yet written
    size_t m_position = 0;  // reading: the first byte of m_buffer not yet handed out
    bool m_writing = false;
};
