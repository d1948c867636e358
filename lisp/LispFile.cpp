#include "lisp/LispFile.h"

#include <filesystem>
#include <string_view>

#include "encoding/Encoding.h"
#include "lisp/LispError.h"

namespace tavrin::lisp {

using encoding::DecodeWindows1252;
using encoding::EncodeWindows1252;
using encoding::TakeCodePoint;

namespace {

std::wstring Named(const std::wstring& name) {
    return L"the file '" + name + L"'";
}

std::ios::openmode OpenMode(EFileMode mode) {
    constexpr std::ios::openmode kModes[] = {std::ios::in, std::ios::out | std::ios::trunc,
                                             std::ios::out | std::ios::app};
    return kModes[mode] | std::ios::binary;
}

// At least four digits, as is usual.
std::wstring CodeText(char32_t character) {
    constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
    std::wstring text = L"U+";
    for (int shift = character > 0xFFFFF ? 20 : character > 0xFFFF ? 16 : 12; shift >= 0; shift -= 4) {
        text += kDigits[(character >> shift) & 0xF];
    }
    return text;
}

std::string ToBytes(const std::wstring& text, const std::wstring& file) {
    std::string bytes;
    for (std::wstring_view rest = text; !rest.empty();) {
        const char32_t c = TakeCodePoint(rest);
        const auto byte = EncodeWindows1252(c);
        if (!byte) {
            throw CLispError(Named(file) + L" cannot hold the character " + CodeText(c) +
                             L": text files are Windows-1252");
        }
        if (*byte == '\n') {
            bytes += '\r';
        }
        bytes += *byte;
    }
    return bytes;
}

}  // namespace

std::shared_ptr<CLispFile> CLispFile::Open(const std::wstring& name, EFileMode mode) {
    std::error_code error;
    if (std::filesystem::is_directory(name, error)) {
        return nullptr;
    }
    std::shared_ptr<CLispFile> file(new CLispFile(name, mode));
    return file->m_stream.is_open() ? file : nullptr;
}

CLispFile::CLispFile(const std::wstring& name, EFileMode mode)
    : m_name(name), m_mode(mode), m_stream(std::filesystem::path(name), OpenMode(mode)) {}

std::optional<std::wstring> CLispFile::ReadLine() {
    CheckOpen(false);
    std::string line;
    if (!std::getline(m_stream, line)) {
        return std::nullopt;
    }
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return DecodeWindows1252(line);
}

std::optional<wchar_t> CLispFile::ReadCharacter() {
    CheckOpen(false);
    char c = 0;
    if (!m_stream.get(c)) {
        return std::nullopt;
    }
    if (c == '\r' && m_stream.peek() == '\n') {
        m_stream.get(c);
    }
    return DecodeWindows1252({&c, 1}).front();
}

void CLispFile::Write(const std::wstring& text) {
    CheckOpen(true);
    m_stream << ToBytes(text, m_name);
    CheckWritten();
}

void CLispFile::Close() {
    if (!m_stream.is_open()) {
        return;
    }
    m_stream.clear(m_mode == FM_READ ? std::ios::goodbit : m_stream.rdstate());
    m_stream.close();
    CheckWritten();
}

void CLispFile::CheckOpen(bool forWriting) const {
    if (!m_stream.is_open()) {
        throw CLispError(Named(m_name) + L" is closed");
    }
    if (forWriting != (m_mode != FM_READ)) {
        throw CLispError(Named(m_name) + (forWriting ? L" is open for reading: open it with \"w\" or \"a\""
                                                     : L" is open for writing: open it with \"r\""));
    }
}

void CLispFile::CheckWritten() const {
    if (!m_stream) {
        throw CLispError(Named(m_name) + L" cannot be written");
    }
}

}  // namespace tavrin::lisp
