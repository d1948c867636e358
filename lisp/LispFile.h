// A text file that a LISP routine has opened: Windows-1252, lines end with CR LF (when reading, LF alone
// too).
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>

namespace tavrin::lisp {

enum EFileMode { FM_READ, FM_WRITE, FM_APPEND };

class CLispFile {
public:
    // Null when the file cannot be opened.
    static std::shared_ptr<CLispFile> Open(const std::wstring& name, EFileMode mode);

    const std::wstring& Name() const { return m_name; }

    // Reading and writing throw CLispError with the name of the file when it is closed or was opened in the
    // other mode.

    // Nothing at the end of the file.
    std::optional<std::wstring> ReadLine();
    std::optional<wchar_t> ReadCharacter();
    // A line feed in the text ends a line. Throws CLispError when the text cannot be written, and, before
    // writing anything, for a character that Windows-1252 does not have.
    void Write(const std::wstring& text);
    // Throws CLispError when the text could not be written to the file. Does nothing when it is closed
    // already.
    void Close();

private:
    CLispFile(const std::wstring& name, EFileMode mode);
    void CheckOpen(bool forWriting) const;
    void CheckWritten() const;

    std::wstring m_name;
    EFileMode m_mode;
    std::fstream m_stream;
};

}  // namespace tavrin::lisp
