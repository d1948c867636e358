#include "devhost/app/TextOutput.h"

#include <windows.h>

#include "encoding/Encoding.h"

namespace {

constexpr wchar_t kProgram[] = L"DevHost";

// For the listener: milliseconds between pieces of text, characters of one piece, and of all together.
constexpr unsigned long long kPause = 100;
constexpr std::size_t kMostOfPiece = 10'000;
constexpr std::size_t kMostCollected = 40'000;

bool IsConsole(HANDLE handle) {
    DWORD mode;
    return GetConsoleMode(handle, &mode) != FALSE;
}

// Whether the console is there for this process alone. Wine gives a program in a Linux terminal one as well,
// with a hidden window; what is written there appears in the terminal.
bool HasConsoleOfItsOwn() {
    DWORD processes[2];
    return GetConsoleProcessList(processes, 2) == 1 && IsWindowVisible(GetConsoleWindow());
}

// Unbuffered, so that what was said stands there when the process crashes after it.
void Write(DWORD standardHandle, std::wstring_view text) {
    const HANDLE handle = GetStdHandle(standardHandle);
    DWORD written;
    if (IsConsole(handle)) {
        WriteConsoleW(handle, text.data(), DWORD(text.size()), &written, nullptr);
    } else {
        const std::string bytes = tavrin::encoding::EncodeUtf8(text);
        WriteFile(handle, bytes.data(), DWORD(bytes.size()), &written, nullptr);
    }
}

// One line whatever a plug-in put into its text.
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
}

void CTextOutput::Text(std::wstring_view text) {
    if (text.empty()) {
        return;
    }
    Write(STD_OUTPUT_HANDLE, text);
    m_isLineOpen = text.back() != L'\n';
    Collect(text);
    TellNowAndThen();
}

void CTextOutput::EndLine() {
    if (m_isLineOpen) {
        Text(L"\n");
    }
    Tell();
}

void CTextOutput::Collect(std::wstring_view text) {
    if (!m_listener) {
        return;
    }
    m_collected += text.substr(0, kMostOfPiece);
    if (text.size() > kMostOfPiece) {
        m_collected += text.back() == L'\n' ? L"...\n" : L"...";
    }
    if (m_collected.size() > kMostCollected) {
        // The older part, up to the end of a line.
        const std::size_t end = m_collected.find(L'\n', kMostCollected / 2);
        m_collected.erase(0, end != std::wstring::npos ? end + 1 : kMostCollected / 2);
    }
}

void CTextOutput::Tell() {
    if (m_listener && !m_collected.empty()) {
        m_listener(m_collected);
    }
    m_collected.clear();
    m_lastTold = GetTickCount64();
}

void CTextOutput::TellNowAndThen() {
    if (GetTickCount64() - m_lastTold >= kPause) {
        Tell();
    }
}

void CTextOutput::Line(std::wstring_view text) {
    EndLine();
    Text(OnOneLine(text) + L'\n');
    Tell();
}

void CTextOutput::Error(std::wstring_view text) {
    EndLine();
    const std::wstring line = OnOneLine(text);
    Write(STD_ERROR_HANDLE, kProgram + (L": " + line) + L'\n');
    Collect(L"; error: " + line + L'\n');
    Tell();
    if (!m_listener && m_useBoxes) {
        MessageBoxW(nullptr, line.c_str(), kProgram, MB_OK | MB_ICONERROR);
    }
}

void CTextOutput::Help(std::wstring_view text) {
    Write(STD_OUTPUT_HANDLE, text);
    if (m_useBoxes) {
        MessageBoxW(nullptr, std::wstring(text).c_str(), kProgram, MB_OK);
    }
}
