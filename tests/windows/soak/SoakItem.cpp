#include "tests/windows/soak/SoakItem.h"

#include <cmath>
#include <set>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/TemplateRewrite.h"

using namespace tavrin::itemdlg;

namespace {

// The files hold ASCII alone here, so a byte is a character.
TextLines LinesOf(const std::string& file) {
    TextLines lines;
    std::wstring line;
    for (const char byte : file) {
        if (byte == '\n') {
            if (!line.empty() && line.back() == L'\r') {
                line.pop_back();
            }
            lines.push_back(line);
            line.clear();
        } else {
            line += static_cast<wchar_t>(byte);
        }
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

std::string FileOf(const TextLines& lines) {
    std::string file;
    for (const std::wstring& line : lines) {
        for (const wchar_t character : line) {
            file += static_cast<char>(character);
        }
        file += "\r\n";
    }
    return file;
}

std::string RandomValue(CChoices& choices) {
    switch (choices.Below(4)) {
        case 0:
            return std::to_string(choices.Below(3000));
        case 1:
            return std::to_string(choices.Below(100)) + '.' + std::to_string(choices.Below(1000));
        case 2:
            return '-' + std::to_string(choices.Below(50));
        default:
            return choices.OneIn(5)
                       ? "abc"
                       : std::to_string(choices.Below(1000)) + "e" + std::to_string(choices.Below(6));
    }
}

std::string RandomLabel(CChoices& choices, int number) {
    switch (choices.Below(5)) {
        case 0:
            return "Label " + std::to_string(number);
        case 1:
            return "a <<" + std::to_string(1501 + choices.Below(8)) + ">> b " + std::to_string(number);
        case 2:
            return "<<" + std::to_string(choices.Below(70000)) + ">>";
        default:
            return "<<" + std::to_string(1501 + choices.Below(8)) + ">>";
    }
}

std::string RandomParameter(CChoices& choices, int number) {
    const char* const letters[] = {"I", "D", "R", "I", "D", "R", "I", "D", "R", "d"};
    return "$" + std::to_string(number) + (choices.OneIn(3) ? "=" : " = ") + "\"" +
           RandomLabel(choices, number) + (choices.OneIn(6) ? "%" : "") + "\"" +
           letters[choices.Below(choices.OneIn(20) ? 10 : 9)] + (choices.OneIn(2) ? " " : "") +
           RandomValue(choices);
}

// Whether the shortest text of a number that a file holds can be what was written there. What was typed may
// be too large for a number: "inf" is one here, "nan" is none.
bool IsNumber(const std::wstring& text) {
    std::size_t used = 0;
    try {
        const double value = std::stod(text, &used);
        return used == text.size() && !std::isnan(value);
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

CSoakItem::CSoakItem(CChoices& choices, const TextLookup& texts) : m_texts(texts) {
    const double scales[] = {1.0, 0.001, 1000.0, 2.54};
    m_scale = scales[choices.Below(4)];
    m_mode = choices.Below(2);
    m_workingFile = RandomFile(choices);
    m_templateFile = choices.OneIn(3) ? RandomFile(choices) : m_workingFile;

    std::set<std::wstring> labels;
    CBlockTracker block;
    int row = 0;
    const TextLines lines = LinesOf(m_workingFile);
    for (int index = 0; index < static_cast<int>(lines.size()); ++index) {
        const std::wstring& line = lines[static_cast<std::size_t>(index)];
        if (!block.TakeLine(line)) {
            continue;
        }
        const std::optional<ParameterRow> read = ReadParameter(line, index, m_scale, m_mode, m_texts);
        if (!read) {
            continue;
        }
        m_records[index] = read->record;
        const auto type = static_cast<wchar_t>(read->record.type);
        if (type == L'U' || !labels.insert(read->record.label).second) {
            continue;
        }
        if (read->editable) {
            m_editableRows.push_back({row, index, type});
        }
        ++row;
    }
}

std::string CSoakItem::RandomFile(CChoices& choices) const {
    const char* const lineEnd = choices.OneIn(2) ? "\n" : "\r\n";
    std::string file = std::string("free text") + lineEnd;
    file += (choices.OneIn(2) ? "<<2001>>" : "A title") + std::string(lineEnd) + "VAR" + lineEnd;
    const int parameters = choices.Below(choices.OneIn(10) ? 60 : 12);
    for (int number = 1; number <= parameters; ++number) {
        if (choices.OneIn(10)) {
            file += std::string("a line between") + lineEnd;
        }
        if (choices.OneIn(25)) {
            file += std::string("END_VAR") + lineEnd + "VAR" + lineEnd;
        }
        file += RandomParameter(choices, choices.OneIn(15) ? 1 : number) + lineEnd;
    }
    return file + "END_VAR" + (choices.OneIn(4) ? "" : lineEnd);
}

void CSoakItem::Type(int lineIndex, double number) {
    ParamRecord& record = m_records[lineIndex];
    if (record.type == 'I') {
        record.intValue = static_cast<std::int32_t>(number);
    } else {
        record.realValue = number;
    }
}

std::string CSoakItem::TakeValuesFrom(const std::string& workingFile) {
    const TextLines lines = LinesOf(workingFile);
    for (const auto& [index, record] : m_records) {
        if (record.type == 'U') {
            continue;
        }
        const std::wstring line = static_cast<std::size_t>(index) < lines.size()
                                      ? lines[static_cast<std::size_t>(index)]
                                      : std::wstring();
        const std::size_t start = line.find(L" = ");
        if (start == std::wstring::npos || !IsNumber(line.substr(start + 3))) {
            return "line " + std::to_string(index) + " is no assignment";
        }
        m_written[index] = line.substr(start + 3);
    }
    // A value that could not be edited is the one that was read.
    std::map<int, std::wstring> fixed;
    for (const auto& [index, record] : m_records) {
        fixed[index] = ValueText(record, m_scale);
    }
    for (const Row& row : m_editableRows) {
        fixed.erase(row.lineIndex);
    }
    for (const auto& [index, text] : m_written) {
        const auto found = fixed.find(index);
        if (found != fixed.end() && found->second != text) {
            return "line " + std::to_string(index) + " has a changed value, but could not be edited";
        }
    }
    return {};
}

std::string CSoakItem::ExpectedWorkingFile() const {
    TextLines lines = LinesOf(m_workingFile);
    RewriteWorkingFile(lines, m_records, [this](const ParamRecord& record) {
        const auto written = m_written.find(record.lineIndex);
        return written != m_written.end() ? written->second : ValueText(record, m_scale);
    });
    return FileOf(lines);
}

std::string CSoakItem::ExpectedTemplateFile() const {
    TextLines lines = LinesOf(m_templateFile);
    RewriteTemplateFile(lines, m_records, [this](const ParamRecord& record) {
        const auto written = m_written.find(record.lineIndex);
        return written != m_written.end() ? written->second : ValueText(record, m_scale);
    });
    return FileOf(lines);
}
