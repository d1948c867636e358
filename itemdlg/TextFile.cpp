#include "itemdlg/TextFile.h"

#include <afx.h>

#include <climits>
#include <cstring>
#include <string_view>

#include "itemdlg/LocaleText.h"

namespace tavrin::itemdlg {

namespace {

constexpr std::size_t kBufferSize = 0x10000;             // bytes
constexpr ULONGLONG kTooLarge = ULONGLONG{INT_MAX} + 1;  // bytes: 2 GB

// Splits the bytes of a file, which arrive in chunks, into lines.
class CLineSplitter {
public:
    explicit CLineSplitter(std::vector<std::wstring>& lines) : m_lines(lines) {}

    void Take(const char* bytes, std::size_t count) {
        const char* const end = bytes + count;
        while (const auto* const lineEnd = static_cast<const char*>(
                   std::memchr(bytes, '\n', static_cast<std::size_t>(end - bytes)))) {
            m_line.append(bytes, lineEnd);
            if (m_line.ends_with('\r')) {
                m_line.pop_back();
            }
            EndLine();
            bytes = lineEnd + 1;
        }
        m_line.append(bytes, end);
    }

    // An unterminated last line counts as a line unless it is empty.
    void Finish() {
        if (!m_line.empty()) {
            EndLine();
        }
    }

private:
    void EndLine() {
        m_lines.push_back(m_text.Decode(m_line));
        m_line.clear();
    }

    const CLocaleText m_text = CLocaleText::OfLocale();
    std::string m_line;
    std::vector<std::wstring>& m_lines;
};

// Buffers the bytes of lines and writes them in chunks.
class CLineWriter {
public:
    explicit CLineWriter(CFile& file) : m_file(file) { m_buffer.reserve(kBufferSize); }

    // False when the locale cannot express the line; everything before it has then been written to the file.
    bool Write(const std::wstring& line) {
        if (!m_text.Encode(line, m_line)) {
            Flush();
            return false;
        }
        std::string_view rest = m_line;
        for (std::size_t feed = 0; (feed = rest.find('\n')) != std::string_view::npos;
             rest.remove_prefix(feed + 1)) {
            Put(rest.substr(0, feed));
            Put("\r\n");
        }
        Put(rest);
        Put("\r\n");
        return true;
    }

    void Flush() {
        m_file.Write(m_buffer.data(), static_cast<UINT>(m_buffer.size()));
        m_buffer.clear();
    }

private:
    void Put(std::string_view bytes) {
        if (m_buffer.size() + bytes.size() > kBufferSize) {
            Flush();
        }
        m_buffer += bytes;
    }

    const CLocaleText m_text = CLocaleText::OfLocale();
    CFile& m_file;
    std::string m_buffer;
    std::string m_line;
};

// A file without a known length, such as a pipe, counts as small enough and is read to its end.
bool IsTooLarge(const CFile& file) {
    try {
        return file.GetLength() >= kTooLarge;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

}  // namespace

bool ReadTextFile(const std::wstring& path, std::vector<std::wstring>& lines) {
    try {
        CFile file(path.c_str(), CFile::modeRead | CFile::typeBinary);
        if (IsTooLarge(file)) {
            return false;
        }
        CLineSplitter splitter(lines);
        std::vector<char> buffer(kBufferSize);
        while (const UINT count = file.Read(buffer.data(), kBufferSize)) {
            splitter.Take(buffer.data(), count);
        }
        splitter.Finish();
        file.Close();
        return true;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

bool WriteTextFile(const std::wstring& path, const std::vector<std::wstring>& lines) {
    try {
        CFile file;
        // Before Open, which empties the file: if its buffer cannot be allocated, the file stays as it is.
        CLineWriter writer(file);
        if (!file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeBinary)) {
            return false;
        }
        for (const std::wstring& line : lines) {
            if (!writer.Write(line)) {
                return false;
            }
        }
        writer.Flush();
        file.Close();
        return true;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

}  // namespace tavrin::itemdlg
