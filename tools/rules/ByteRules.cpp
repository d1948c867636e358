#include "tools/rules/ByteRules.h"

#include <algorithm>
#include <string>

#include "tools/files/FileLines.h"
#include "tools/texts/CodePage.h"

namespace tavrin::tools {

namespace {

constexpr Rule kByteOrderMark = {
    "byte-order-mark", SV_ERROR, "the file begins with a byte order mark",
    "The files are single-byte text without a byte order mark. The module takes the bytes of a mark for\n"
    "characters of the first line; it cannot read UTF-16 at all. Save the file as ANSI (Windows-1252) text.",
    "\xC3\xAF\xC2\xBB\xC2\xBFHinged door"};

constexpr Rule kNullCharacter = {"null-character", SV_ERROR, "a line contains a null character",
                                 "The module reads a line up to its first null character: the rest is not "
                                 "seen, and is lost when the line\n"
                                 "is written. Usually the file was saved as UTF-16, or is damaged.",
                                 "$1 = \"<<1501>>\"D 9\xE2\x90\x80"
                                 "00"};

constexpr Rule kSubstituteCharacter = {"substitute-character", SV_WARNING,
                                       "a line contains the character 0x1A",
                                       "Old programs end a text file at this character. For the module it is "
                                       "an ordinary character of its line,\n"
                                       "even if the line contains nothing else. Remove it.",
                                       "END_VAR\xE2\x90\x9A"};

constexpr Rule kLoneReturn = {
    "lone-return", SV_ERROR, "a carriage return without a line feed",
    "Lines end with CR LF or LF. A carriage return alone is a character of its line: VAR with one after it\n"
    "opens no block, and a file with the line ends of old Macintosh computers is one single line.",
    "VAR\xE2\x90\x8D"};

constexpr Rule kUtf8Text = {
    "utf8-text", SV_WARNING, "letters beyond ASCII are in UTF-8",
    "The module reads every byte as one character, so a letter of two bytes is shown as two wrong ones. "
    "Save\n"
    "the file as ANSI (Windows-1252) text, or better put the text into TavrinRes.dll and a placeholder here.",
    "$4 = \"Profondit\xC3\x83\xC2\xA0 <<1504>>\"D 80"};

constexpr Rule kNonAscii = {
    "non-ascii", SV_NOTE, "bytes beyond ASCII depend on the code page",
    "The code page of the computer that runs the host decides how such a byte is shown. Texts of\n"
    "TavrinRes.dll are the same everywhere: put the text there and a placeholder here.",
    "$4 = \"Profondit\xC3\xA0 <<1504>>\"D 80"};

constexpr const Rule* kRules[] = {&kByteOrderMark, &kNullCharacter, &kSubstituteCharacter,
                                  &kLoneReturn,    &kUtf8Text,      &kNonAscii};

constexpr std::wstring_view kUtf8Mark = L"\u00EF\u00BB\u00BF";
constexpr std::wstring_view kUtf16Marks[] = {L"\u00FF\u00FE", L"\u00FE\u00FF"};

bool IsPlain(wchar_t character) {
    return character < 0x80 && character != L'\0' && character != L'\x1A' && character != L'\r';
}

std::string Times(std::size_t count) {
    return count == 1 ? "" : " (the first of " + std::to_string(count) + ")";
}

bool HasUtf16Mark(std::wstring_view firstLine) {
    return std::any_of(std::begin(kUtf16Marks), std::end(kUtf16Marks),
                       [&](std::wstring_view mark) { return firstLine.starts_with(mark); });
}

// Whether exactly every other character is null, like ASCII in UTF-16.
bool AlternatesWithNulls(std::wstring_view line) {
    constexpr std::size_t kLeast = 4;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if ((line[i - 1] == L'\0') == (line[i] == L'\0')) {
            return false;
        }
    }
    return line.size() >= kLeast;
}

}  // namespace

RuleList ByteRules() {
    return kRules;
}

bool CByteRules::IsUtf16(std::wstring_view firstLine) {
    return HasUtf16Mark(firstLine) || AlternatesWithNulls(firstLine);
}

void CByteRules::TakeLine(const ItemLine& line) {
    const std::wstring& text = line.text;
    if (std::all_of(text.begin(), text.end(), IsPlain)) {
        return;
    }
    std::size_t start = 0;
    if (line.index == 0 && IsUtf16(text)) {
        const bool hasMark = HasUtf16Mark(text);
        Findings().Add(hasMark ? kByteOrderMark : kNullCharacter, line, 0, hasMark ? 2 : text.size(),
                       "the file is UTF-16, which the module cannot read: save it as ANSI text");
        return;
    }
    if (line.index == 0 && text.starts_with(kUtf8Mark)) {
        start = kUtf8Mark.size();
        Findings().Add(
            kByteOrderMark, line, 0, start,
            "the byte order mark is read as three characters of this line: save the file without it");
    }
    const auto report = [&](const Rule& rule, wchar_t character, const std::string& message) {
        const std::size_t position = text.find(character, start);
        if (position != std::wstring::npos) {
            const auto count = std::count(text.begin(), text.end(), character);
            Findings().Add(rule, line, position, 1, message + Times(static_cast<std::size_t>(count)));
        }
    };
    report(kNullCharacter, L'\0', "the module does not read the part of this line after the null character");
    report(kSubstituteCharacter, L'\x1A',
           "the character 0x1A does not end the file, it is part of this line");
    report(kLoneReturn, L'\r', "a carriage return alone does not end a line, it is part of this line");
    ReportNonAscii(line, start);
}

void CByteRules::ReportNonAscii(const ItemLine& line, std::size_t start) {
    const std::wstring& text = line.text;
    const auto isForeign = [](wchar_t character) { return character >= 0x80; };
    const auto first = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isForeign);
    if (first == text.end()) {
        return;
    }
    const auto last = std::find_if_not(first, text.end(), isForeign);
    const auto position = static_cast<std::size_t>(first - text.begin());
    const auto length = static_cast<std::size_t>(last - first);
    if (DecodeText(BytesOf(text), kUtf8)) {
        Findings().Add(kUtf8Text, line, position, length,
                       "this is UTF-8, which shows as " + Quoted(text.substr(position, length)));
    } else {
        Findings().Add(kNonAscii, line, position, length,
                       Quoted(text.substr(position, length)) + " is shown so only in code page 1252");
    }
}

}  // namespace tavrin::tools
