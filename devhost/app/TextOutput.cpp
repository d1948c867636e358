#include "devhost/app/TextOutput.h"

#include <windows.h>

#include "devhost/Libraries.h"
#include "encoding/Encoding.h"

namespace devhost {

namespace {

constexpr wchar_t kProgram[] = L"DevHost";

// For the listener: milliseconds between flushes, characters of one piece of text, and of the collected text.
constexpr unsigned long long kFlushInterval = 100;
constexpr std::size_t kMaxPiece = 10'000;
constexpr std::size_t kMaxCollected = 40'000;

bool IsConsole(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != FALSE;
}

bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

// Whether the console was created for this process alone. Its window is hidden where a terminal program shows
// the output; Wine in a Linux terminal hides it as well, but there the program was started from a shell.
bool HasConsoleOfItsOwn() {
    DWORD processes[2];
    return GetConsoleProcessList(processes, 2) == 1 && (IsWindowVisible(GetConsoleWindow()) || !IsWine());
}

// Whether the process was started without a console and without a file or pipe for its errors.
bool HasNoOutput() {
    const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
    return errors == nullptr || errors == INVALID_HANDLE_VALUE || GetFileType(errors) == FILE_TYPE_UNKNOWN;
}

// Unbuffered, so that the output is complete when the process crashes.
void Write(DWORD standardHandle, std::wstring_view text) {
    const HANDLE handle = GetStdHandle(standardHandle);
    DWORD written = 0;
    if (IsConsole(handle)) {
        WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    } else {
        const std::string bytes = encoding::EncodeUtf8(text);
        WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }
}

// Removes line breaks from a plug-in's text.
std::wstring OnOneLine(std::wstring_view text) {
    std::wstring line;
    for (const wchar_t c : text) {
        line += c == L'\n' || c == L'\r' || c == L'\0' ? L' ' : c;
    }
    return line;
}

}  // namespace

CTextOutput::CTextOutput() {
    if (HasConsoleOfItsOwn() && IsConsole(GetStdHandle(STD_OUTPUT_HANDLE)) &&
        IsConsole(GetStdHandle(STD_ERROR_HANDLE))) {
        FreeConsole();
        m_useBoxes = true;
    }
    m_useBoxes = m_useBoxes || HasNoOutput();
}

void CTextOutput::Text(std::wstring_view text) {
    if (text.empty()) {
        return;
    }
    Write(STD_OUTPUT_HANDLE, text);
    m_isLineOpen = text.back() != L'\n';
    Collect(text);
    FlushIfDue();
}

void CTextOutput::EndLine() {
    if (m_isLineOpen) {
        Text(L"\n");
    }
    Flush();
}

void CTextOutput::Collect(std::wstring_view text) {
    if (!m_listener) {
        return;
    }
    m_collected += text.substr(0, kMaxPiece);
    if (text.size() > kMaxPiece) {
        m_collected += text.back() == L'\n' ? L"...\n" : L"...";
    }
    if (m_collected.size() > kMaxCollected) {
        // Remove the older part, up to the end of a line.
        const std::size_t end = m_collected.find(L'\n', kMaxCollected / 2);
        m_collected.erase(0, end != std::wstring::npos ? end + 1 : kMaxCollected / 2);
    }
}

void CTextOutput::Flush() {
    if (m_listener && !m_collected.empty()) {
        m_listener(m_collected);
    }
    m_collected.clear();
    m_lastFlush = GetTickCount64();
}

void CTextOutput::FlushIfDue() {
    if (GetTickCount64() - m_lastFlush >= kFlushInterval) {
        Flush();
    }
}

void CTextOutput::Line(std::wstring_view text) {
    EndLine();
    Text(OnOneLine(text) + L'\n');
    Flush();
}

void CTextOutput::Error(std::wstring_view text) {
    EndLine();
    const std::wstring line = OnOneLine(text);
    Write(STD_ERROR_HANDLE, kProgram + (L": " + line) + L'\n');
    Collect(L"; error: " + line + L'\n');
    Flush();
    if (!m_listener && m_useBoxes) {
        MessageBoxW(nullptr, line.c_str(), kProgram, MB_OK | MB_ICONERROR);
    }
}

void CTextOutput::Help(std::wstring_view text) const {
    Write(STD_OUTPUT_HANDLE, text);
    if (m_useBoxes) {
        MessageBoxW(nullptr, std::wstring(text).c_str(), kProgram, MB_OK);
    }
}

}  // namespace devhost
