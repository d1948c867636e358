// A text file that a LISP routine has opened: Windows-1252, lines with CR LF (read with LF alone, too).
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>

enum EFileMode { FM_READ, FM_WRITE, FM_APPEND };

class CLispFile {
public:
    // Null when the file cannot be opened so.
    static std::shared_ptr<CLispFile> Open(const std::wstring& name, EFileMode mode);

    const std::wstring& Name() const { return m_name; }

    // Each of these throws CLispError, which names the file, when it is closed or open the other way.

    // Nothing at the end of the file.
    std::optional<std::wstring> ReadLine();
    std::optional<wchar_t> ReadCharacter();
    // A line feed in the text ends a line. Throws CLispError for a character that the file cannot hold,
    // before anything is written, and when the text cannot be written.
    void Write(const std::wstring& text);
    // Throws CLispError when what was written did not get into the file. Once closed, does nothing.
    void Close();

private:
    CLispFile(const std::wstring& name, EFileMode mode);
    void CheckOpen(bool forWriting) const;
    void CheckWritten() const;

    std::wstring m_name;
    EFileMode m_mode;
    std::fstream m_stream;
};
