// CStdioFile: lines of text.
#include <algorithm>
#include <cstring>
#include <utility>

#include "afx/AfxFile.h"
#include "afx/AfxTextCodec.h"

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

constexpr size_t bufferSize = 0x10000;  // bytes

}  // namespace

CStdioFile::CStdioFile() = default;

CStdioFile::CStdioFile(LPCTSTR fileName, UINT openFlags) {
    CFileException error;
    if (!CStdioFile::Open(fileName, openFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CStdioFile::~CStdioFile() {
    try {
        CStdioFile::Close();
    } catch (CException* error) {
        error->Delete();
    }
}

BOOL CStdioFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    if ((openFlags & typeBinary) != 0 || (openFlags & 3) == modeReadWrite) {
        AfxThrowNotSupportedException();
    }
    if (m_hFile != INVALID_HANDLE_VALUE) {
        CStdioFile::Close();
    }
    // Before the file is emptied: with no memory for this it stays as it is.
    m_codec = std::make_unique<CAfxTextCodec>(CAfxTextCodec::OfLocale());
    if (!CFile::Open(fileName, openFlags, error)) {
        return FALSE;
    }
    m_writing = (openFlags & 3) == modeWrite;
    m_buffer.clear();
    m_position = 0;
    return TRUE;
}

UINT CStdioFile::Read(void*, UINT) {
    AfxThrowNotSupportedException();
}

bool CStdioFile::FillBuffer() {
    // Not in the buffer itself, which closing would write when the reading fails in a file opened for
    // writing.
    std::string bytes(bufferSize, '\0');
    bytes.resize(CFile::Read(bytes.data(), bufferSize));
    m_buffer.swap(bytes);
    m_position = 0;
    return !m_buffer.empty();
}

BOOL CStdioFile::ReadString(CString& line) {
    line.Empty();
    Flush();  // of a file opened for writing, whose reading then fails
    std::string bytes;
    for (bool ended = false; !ended;) {
        if (m_position == m_buffer.size() && !FillBuffer()) {
            if (bytes.empty()) {
                return FALSE;
            }
            break;
        }
        const char* const first = m_buffer.data() + m_position;
        const size_t available = m_buffer.size() - m_position;
        const auto* const lineEnd = static_cast<const char*>(std::memchr(first, '\n', available));
        ended = lineEnd != nullptr;
        const size_t length = ended ? static_cast<size_t>(lineEnd - first) : available;
        bytes.append(first, length);
        m_position += length + (ended ? 1 : 0);
        if (ended && !bytes.empty() && bytes.back() == '\r') {
            bytes.pop_back();
        }
    }
    const std::wstring text = m_codec->Decode(bytes);
    line.SetString(text.data(), static_cast<int>(text.size()));
    return TRUE;
}

void CStdioFile::WriteString(LPCTSTR text) {
    std::string bytes;
    if (!m_codec->Encode(text, bytes)) {
        Flush();
        AfxThrowFileException(CFileException::genericException, ERROR_NO_UNICODE_TRANSLATION, m_strFileName);
    }
    Put(bytes.data(), bytes.size());
}

void CStdioFile::Write(const void* buffer, UINT count) {
    Put(static_cast<const char*>(buffer), count);
}

void CStdioFile::Put(const char* bytes, size_t count) {
    for (const char* const end = bytes + count; bytes != end;) {
        const char* const lineEnd = std::find(bytes, end, '\n');
        m_buffer.append(bytes, lineEnd);
        bytes = lineEnd;
        if (lineEnd != end) {
            m_buffer += "\r\n";
            ++bytes;
        }
        if (m_buffer.size() >= bufferSize) {
            Flush();
        }
    }
}

void CStdioFile::Flush() {
    if (!m_writing) {
        return;
    }
    // Bytes that cannot be written now are not written later either.
    const std::string bytes = std::exchange(m_buffer, {});
    CFile::Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

void CStdioFile::Close() {
    try {
        Flush();
    } catch (...) {
        Abort();
        throw;
    }
    m_writing = false;
    CFile::Close();
}

void CStdioFile::Abort() {
    m_buffer.clear();
    m_position = 0;
    m_writing = false;
    CFile::Abort();
}
