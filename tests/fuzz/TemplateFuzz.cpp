// Reading an item's files and rewriting both. The first byte says in which mode; all others are the file.
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/TemplateRewrite.h"
#include "itemdlg/TemplateText.h"
#include "tests/fuzz/Fuzz.h"

using namespace tavrin::itemdlg;

namespace {

TextLines Lines(std::string_view bytes) {
    TextLines lines;
    while (!bytes.empty()) {
        lines.push_back(WideText(CutLine(bytes)));
    }
    return lines;
}

std::wstring Lookup(unsigned id) {
    Require(id >= 1 && id <= 0xFFFF, "a text is requested by a valid number");
    return id % 2 == 0 ? std::wstring() : L"Text " + std::to_wstring(id) + (id % 3 == 0 ? L"%" : L"");
}

void RequireParts(const std::wstring& line, const ParameterLine& parts) {
    const std::wstring whole = line.substr(0, line.find(L'\0'));
    const std::wstring end = parts.label + L'"' + parts.typeLetter + parts.value;
    Require(whole.size() > end.size() && whole.ends_with(end), "label, letter and value end the line");
    Require(whole.starts_with(L'$' + parts.number), "the number begins the line");
}

ParamRecordMap Read(const TextLines& lines, double scale, int mode) {
    ParamRecordMap records;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::wstring& line = lines[index];
        const bool inside = block.TakeLine(line);
        const std::optional<ParameterLine> parts = ParseParameterLine(line);
        const auto lineIndex = static_cast<std::int32_t>(index);
        std::optional<ParameterRow> row = ReadParameter(line, lineIndex, scale, mode, Lookup);
        Require(parts.has_value() == row.has_value(),
                "a parameter is read from exactly the lines of its form");
        if (!row) {
            continue;
        }
        RequireParts(line, *parts);
        Require(row->record.number == parts->number && row->record.lineIndex == lineIndex,
                "a record keeps its number and its line");
        Require(row->editable || mode == kReadOnlyMode, "a row is read-only in one mode alone");
        if (inside) {
            records[lineIndex] = std::move(row->record);
        }
    }
    return records;
}

std::wstring PlainValue(const ParamRecord& record) {
    return ValueText(record, 1.0);
}

void CheckWorkingFile(const TextLines& before, const ParamRecordMap& records) {
    TextLines after = before;
    RewriteWorkingFile(after, records, PlainValue);
    Require(after.size() == before.size(), "the working file keeps its number of lines");
    for (std::size_t index = 0; index < before.size(); ++index) {
        const auto record = records.find(static_cast<std::int32_t>(index));
        if (record == records.end()) {
            Require(after[index] == before[index], "the working file keeps lines that are no parameters");
        } else {
            Require(after[index] == WorkingFileLine(record->second, PlainValue(record->second)),
                    "each parameter is assigned in its own line");
        }
    }
}

// Whether a record's line reads just so again. A label with ">>" before its first "<<" does not: what is cut
// off it is counted from there. Nor need one with a second "<<", since the number is taken from the last
// placeholder of the line, be it in the value. An infinity has no notation.
bool ReadsAgain(const ParamRecord& record) {
    return std::isfinite(record.realValue) && record.labelPrefix.find(L">>") == std::wstring::npos &&
           record.labelSuffix.find(L"<<") == std::wstring::npos;
}

void CheckTemplate(const TextLines& before, const ParamRecordMap& records) {
    TextLines after = before;
    RewriteTemplateFile(after, records, PlainValue);
    Require(after.size() == before.size(), "the template keeps its number of lines");
    std::map<std::wstring, std::int32_t> lastLine;
    bool readsAgain = true;
    for (const auto& [index, record] : records) {
        lastLine[record.number] = index;
        readsAgain = readsAgain && ReadsAgain(record);
    }
    for (std::size_t index = 0; index < before.size(); ++index) {
        const auto record = records.find(static_cast<std::int32_t>(index));
        const bool last = record != records.end() && lastLine[record->second.number] == record->first;
        Require(last || after[index] == before[index],
                "the template keeps all lines but the last ones of its parameters");
        if (last && record->second.type != 'U') {
            Require(after[index] == TemplateFileLine(record->second, PlainValue(record->second)),
                    "the last line of a parameter is its new default");
        }
    }
    TextLines twice = after;
    RewriteTemplateFile(twice, records, PlainValue);
    Require(twice == after, "the same values written twice change nothing more");
    if (readsAgain) {
        RewriteTemplateFile(twice, Read(after, 1.0, kReadOnlyMode), PlainValue);
        Require(twice == after, "a rewritten template that is read and written again stays as it is");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const TextLines lines = Lines(Bytes(data + 1, size - 1));
    const double scales[] = {1.0, 2.5, -1.0, 0.0, 1e300};
    Read(lines, scales[data[0] / 4 % 5], data[0] % 4);
    const ParamRecordMap records = Read(lines, 1.0, data[0] % 4);
    CheckWorkingFile(lines, records);
    CheckTemplate(lines, records);
    for (const std::wstring& line : lines) {
        TitleText(line, Lookup);
    }
    return 0;
}
