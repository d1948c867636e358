#include "tools/tavrincheck/PreviewReport.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

#include "encoding/Encoding.h"
#include "itemdlg/ItemMessages.h"
#include "tools/files/UnifiedDiff.h"

namespace tavrin::tools {

namespace {

enum EColumn { CL_LINE, CL_NUMBER, CL_KIND, CL_LABEL, CL_VALUE, CL_REMARK, CL_COUNT };

using Cells = std::array<std::wstring, CL_COUNT>;

// Replaces control characters by symbols of one column.
std::wstring Printable(std::wstring text) {
    for (wchar_t& character : text) {
        if (character < 0x20) {
            character = static_cast<wchar_t>(0x2400 + character);
        } else if (character >= 0x7F && character < 0xA0) {
            character = character == 0x7F ? 0x2421 : 0xFFFD;
        }
    }
    return text;
}

std::wstring KindText(const itemdlg::ParamRecord& record) {
    switch (record.type) {
        case 'D':
            return L"distance";
        case 'I':
            return L"whole number";
        case 'R':
            return L"real number";
        default:
            return L"(invalid)";
    }
}

std::wstring RemarkText(const itemdlg::ItemParameter& parameter) {
    switch (parameter.row) {
        case itemdlg::PR_LABEL_TAKEN:
        case itemdlg::PR_INVALID_TYPE:
            return L"NO ROW";
        default:
            return parameter.editable ? L"" : L"read-only";
    }
}

std::string LineText(const itemdlg::ParamRecord& record) {
    return "line " + std::to_string(record.lineIndex + 1) + ": ";
}

std::string TableText(const std::vector<Cells>& rows) {
    std::array<std::size_t, CL_COUNT> widths{};
    for (const Cells& cells : rows) {
        for (std::size_t column = 0; column < CL_COUNT; ++column) {
            widths[column] = std::max(widths[column], cells[column].size());
        }
    }
    std::string text;
    for (const Cells& cells : rows) {
        std::wstring line;
        for (std::size_t column = 0; column < CL_COUNT; ++column) {
            const std::wstring padding(widths[column] - cells[column].size(), L' ');
            line += column == CL_LINE ? padding + cells[column] : cells[column] + padding;
            line += L"  ";
        }
        line.erase(line.find_last_not_of(L' ') + 1);
        text += encoding::EncodeUtf8(line) + "\n";
    }
    return text;
}

std::string RowsText(const CItemPreview& preview) {
    std::vector<Cells> rows = {{L"line", L"number", L"kind", L"label", L"value", L""}};
    for (const itemdlg::ItemParameter& parameter : preview.Contents().parameters) {
        const itemdlg::ParamRecord& record = parameter.record;
        rows.push_back({std::to_wstring(record.lineIndex + 1), L"$" + record.number, KindText(record),
                        Printable(record.label), Printable(preview.ValueTextOf(parameter)),
                        RemarkText(parameter)});
    }
    return rows.size() > 1 ? TableText(rows) : "There are no rows.\n";
}

// The dialog's messages, and remarks on rows that are missing.
std::string MessagesText(const PreviewInput& input, const CItemPreview& preview) {
    const std::string box = encoding::EncodeUtf8(itemdlg::kInvalidTypeMessage);
    std::string text;
    std::map<std::wstring, const itemdlg::ParamRecord*> shown;
    for (const itemdlg::ItemParameter& parameter : preview.Contents().parameters) {
        const itemdlg::ParamRecord& record = parameter.record;
        if (parameter.row == itemdlg::PR_SHOWN) {
            shown[record.label] = &record;
        } else if (parameter.row == itemdlg::PR_INVALID_TYPE) {
            text += LineText(record) + "a box says \"" + box +
                    "\"; there is no row, OK assigns nothing to the number and leaves the template's line\n";
        } else {
            text += LineText(record) + "there is no row, since line " +
                    std::to_string(shown[record.label]->lineIndex + 1) +
                    " has the same label; OK writes the value that was read\n";
        }
    }
    if (!input.templateFile) {
        text += "after OK a box says \"" + encoding::EncodeUtf8(itemdlg::kFileNotFoundMessage) +
                "\": there is no " + input.templateName + "\n";
    }
    return text;
}

std::vector<std::string> DiffLines(const itemdlg::TextLines& lines) {
    std::vector<std::string> result;
    result.reserve(lines.size());
    for (const std::wstring& line : lines) {
        result.push_back(encoding::EncodeUtf8(Printable(line)) + "\n");
    }
    return result;
}

std::string LineEndsText(const PreviewFile& file) {
    const auto others = std::count_if(file.lines.begin(), file.lines.end(),
                                      [](const FileLine& line) { return line.ending != "\r\n"; });
    if (others == 0) {
        return {};
    }
    return file.name + ": OK ends every line with CR LF, which " + std::to_string(others) + " of " +
           std::to_string(file.lines.size()) + " do not\n";
}

std::string ChangesText(const PreviewFile& file, const itemdlg::TextLines& after) {
    const std::vector<std::string> before = DiffLines(TextsOf(file.lines));
    const std::string diff =
        UnifiedDiff(file.name, file.name + " after OK", before, EditsBetween(before, DiffLines(after)));
    return LineEndsText(file) + (diff.empty() ? file.name + ": OK changes no line\n" : diff);
}

}  // namespace

std::string PreviewReport(const PreviewInput& input, const CItemPreview& preview) {
    const itemdlg::ItemContents& contents = preview.Contents();
    const auto shown = [](const std::wstring& text) { return encoding::EncodeUtf8(Printable(text)); };
    std::string text = "Title:    " + shown(contents.title.value_or(L"(the item's base name)")) + "\n";
    text += "Header:   " + shown(contents.title ? contents.header : L"  Parametri") + "\n";
    text += "Picture:  " + input.picture.value_or("(none)") + "\n\n";
    text += RowsText(preview) + "\n";
    const std::string messages = MessagesText(input, preview);
    text += messages.empty() ? messages : messages + "\n";
    text += ChangesText(input.workingFile, preview.WorkingFileAfter(TextsOf(input.workingFile.lines)));
    if (input.templateFile) {
        const PreviewFile& file = *input.templateFile;
        text += "\n" + ChangesText(file, preview.TemplateFileAfter(TextsOf(file.lines)));
    }
    return text;
}

}  // namespace tavrin::tools
