#include "devhost/app/ItemCheck.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "devhost/Libraries.h"
#include "devhost/app/LoadedTexts.h"
#include "devhost/app/SearchPath.h"
#include "encoding/Encoding.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/Files.h"
#include "tools/rules/Checker.h"
#include "tools/rules/FileCheck.h"
#include "tools/texts/TextTable.h"

namespace devhost {

namespace itemdlg = tavrin::itemdlg;
namespace tools = tavrin::tools;

namespace {

using Lines = std::vector<std::wstring>;

constexpr std::string_view kUsedWorkingFile = "working-file-used";

std::wstring Wide(std::string_view utf8) {
    return encoding::DecodeUtf8(utf8).value_or(std::wstring());
}

// "; warning: door.TXT:4:7: message [rule]"
std::wstring LineOf(const tools::Finding& finding) {
    std::wstring line = L"; " + Wide(tools::SeverityName(finding.rule->severity)) + L": " +
                        std::filesystem::path(Wide(finding.file)).filename().wstring();
    if (finding.line != 0) {
        line += L':' + std::to_wstring(finding.line) + L':' + std::to_wstring(finding.column);
    }
    return line + L": " + Wide(finding.message) + L" [" + Wide(finding.rule->id) + L']';
}

void Append(Lines& lines, const std::vector<tools::Finding>& findings) {
    for (const tools::Finding& finding : findings) {
        // Routines write the working file anew; CheckBeforeDialog reports a dialog that is opened without.
        if (finding.rule->id != kUsedWorkingFile) {
            lines.push_back(LineOf(finding));
        }
    }
}

// The texts of TavrinRes.dll, and the findings about them; nothing when it cannot be read.
std::optional<tools::CTextTable> ReadTexts(Lines& lines) {
    const std::string name = encoding::EncodeUtf8(TextModulePath());
    if (name.empty()) {
        return std::nullopt;
    }
    try {
        tools::CTextTable texts;
        texts.ReadBytes(name, tools::ReadBytes(name));
        Append(lines, tools::CheckTextsOfModule(texts));
        return texts;
    } catch (const tools::CToolError& error) {
        lines.push_back(L"; error: " + Wide(error.what()));
        return std::nullopt;
    }
}

Lines LinesOf(const Item& item) {
    const std::wstring base = item.folder + L'\\' + item.name;
    const std::wstring templateFile = base + itemdlg::kTemplateFileEnding;
    const std::wstring workingFile = base + itemdlg::kWorkingFileEnding;
    if (!IsFile(templateFile)) {
        return {};  // an item without parameters
    }
    Lines lines;
    const std::optional<tools::CTextTable> texts = ReadTexts(lines);
    tools::CFileCheck check(texts ? &*texts : nullptr);
    for (const std::wstring& file : {templateFile, workingFile}) {
        try {
            if (IsFile(file)) {
                Append(lines, check.Check({encoding::EncodeUtf8(file), file == workingFile,
                                           encoding::EncodeUtf8(base)}));
            }
        } catch (const tools::CToolError& error) {
            lines.push_back(L"; error: " + Wide(error.what()));
        }
    }
    if (TextModulePath().empty() && check.UsedTexts().any()) {
        lines.push_back(
            L"; warning: TavrinRes.dll was not found, so titles and labels that are placeholders are "
            L"empty: put it beside DevHost.exe");
    }
    return lines;
}

}  // namespace

void CItemCheck::Check(const Item& item) {
    Lines lines = LinesOf(item);
    Lines& printed = m_printed[item.folder];
    for (const std::wstring& line : lines) {
        if (std::find(printed.begin(), printed.end(), line) == printed.end()) {
            m_output.Line(line);
        }
    }
    if (lines.empty() && !printed.empty()) {
        m_output.Line(L"; " + item.name + L": no more findings");
    }
    printed = std::move(lines);
}

void CItemCheck::CheckBeforeDialog(const std::wstring& path) {
    try {
        tools::CheckContext context;
        context.file = encoding::EncodeUtf8(path);
        context.isWorkingFile = true;
        for (const tools::Finding& finding : tools::CheckText(tools::ReadBytes(context.file), context)) {
            if (finding.rule->id == kUsedWorkingFile) {
                m_output.Line(LineOf(finding));
            }
        }
    } catch (const tools::CToolError&) {
        // The plug-in reports files that cannot be read.
    }
}

}  // namespace devhost
