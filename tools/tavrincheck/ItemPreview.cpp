#include "tools/tavrincheck/ItemPreview.h"

#include <cmath>
#include <optional>
#include <utility>

#include "cmdline/ParseNumber.h"
#include "encoding/Encoding.h"
#include "itemdlg/NumberText.h"
#include "units/LinearUnits.h"

namespace tavrin::tools {

namespace {

std::string Quoted(const std::wstring& text) {
    return "'" + encoding::EncodeUtf8(text) + "'";
}

}  // namespace

CItemPreview::CItemPreview(const itemdlg::TextLines& workingFile, PreviewSettings settings)
    : m_settings(std::move(settings)),
      m_contents(itemdlg::ReadItem(workingFile, m_settings.scale, m_settings.mode, m_settings.texts)) {}

std::wstring CItemPreview::ValueTextOf(const itemdlg::ItemParameter& parameter) const {
    const itemdlg::ParamRecord& record = parameter.record;
    switch (record.type) {
        case 'D':
            return m_settings.distanceText(record.realValue);
        case 'I':
            return itemdlg::IntText(record.intValue);
        case 'R':
            return itemdlg::GeneralText(record.realValue);
        default:
            return {};
    }
}

itemdlg::ItemParameter& CItemPreview::FindRow(const std::wstring& number) {
    itemdlg::ItemParameter* found = nullptr;
    bool hasParameter = false;
    for (itemdlg::ItemParameter& parameter : m_contents.parameters) {
        if (parameter.record.number != number) {
            continue;
        }
        hasParameter = true;
        if (parameter.row != itemdlg::PR_SHOWN) {
            continue;
        }
        if (found != nullptr) {
            throw CToolError("number " + Quoted(number) + " has two rows, in lines " +
                             std::to_string(found->record.lineIndex + 1) + " and " +
                             std::to_string(parameter.record.lineIndex + 1) + ": which one is meant is open");
        }
        found = &parameter;
    }
    if (found == nullptr) {
        throw CToolError(hasParameter ? "parameter " + Quoted(number) + " has no row to type a value into"
                                      : "there is no parameter with the number " + Quoted(number));
    }
    return *found;
}

void CItemPreview::SetValue(const std::wstring& number, const std::wstring& value) {
    itemdlg::ItemParameter& parameter = FindRow(number);
    if (!parameter.editable) {
        throw CToolError("parameter " + Quoted(number) + " is read-only in this mode");
    }
    itemdlg::ParamRecord& record = parameter.record;
    if (record.type == 'I') {
        const std::optional<int> whole = cmdline::ParseNumber<int>(encoding::EncodeUtf8(value));
        if (!whole) {
            throw CToolError("parameter " + Quoted(number) + " takes a whole number, not " + Quoted(value));
        }
        record.intValue = *whole;
        return;
    }
    const std::optional<double> real = record.type == 'D'
                                           ? units::ParseLinear(value)
                                           : cmdline::ParseNumber<double>(encoding::EncodeUtf8(value));
    if (!real || !std::isfinite(*real)) {
        throw CToolError("parameter " + Quoted(number) +
                         (record.type == 'D' ? " takes a distance, not " : " takes a real number, not ") +
                         Quoted(value));
    }
    record.realValue = *real;
}

itemdlg::TextLines CItemPreview::WorkingFileAfter(itemdlg::TextLines lines) const {
    return Rewritten(std::move(lines), itemdlg::RewriteWorkingFile);
}

itemdlg::TextLines CItemPreview::TemplateFileAfter(itemdlg::TextLines lines) const {
    return Rewritten(std::move(lines), itemdlg::RewriteTemplateFile);
}

// Parameters without a row keep the value that was read.
itemdlg::TextLines CItemPreview::Rewritten(itemdlg::TextLines lines, Rewriter rewrite) const {
    itemdlg::ParamRecordMap records;
    for (const itemdlg::ItemParameter& parameter : m_contents.parameters) {
        records[parameter.record.lineIndex] = parameter.record;
    }
    rewrite(lines, records, [this](const itemdlg::ParamRecord& record) {
        return itemdlg::ValueText(record, m_settings.scale);
    });
    return lines;
}

}  // namespace tavrin::tools
