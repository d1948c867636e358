#include "tools/tavrincheck/ItemPreview.h"

#include <cmath>
#include <optional>
#include <utility>

#include "cmdline/ParseNumber.h"
#include "encoding/Encoding.h"
#include "itemdlg/NumberText.h"
#include "propgrid/model/TypedNumber.h"
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

std::string CItemPreview::SetValue(const std::wstring& number, const std::wstring& value) {
    itemdlg::ItemParameter& parameter = FindRow(number);
    if (!parameter.editable) {
        throw CToolError("parameter " + Quoted(number) + " is read-only in this mode");
    }
    itemdlg::ParamRecord& record = parameter.record;
    bool isTaken = false;  // as it was typed
    if (record.type == 'D') {
        const std::optional<double> distance = units::ParseLinear(value);
        isTaken = distance && std::isfinite(*distance);
        record.realValue = isTaken ? *distance : record.realValue;
    } else if (value.empty()) {
        // The grid keeps the number.
    } else if (record.type == 'I') {
        record.intValue = propgrid::ReadTypedInteger(value);
        isTaken = cmdline::ParseNumber<int>(encoding::EncodeUtf8(value)) == record.intValue;
    } else {
        record.realValue = propgrid::ReadTypedReal(value);
        isTaken = cmdline::ParseNumber<double>(encoding::EncodeUtf8(value)) == record.realValue;
    }
    return isTaken ? std::string() : RemarkOn(parameter, value);
}

std::string CItemPreview::RemarkOn(const itemdlg::ItemParameter& parameter, const std::wstring& typed) const {
    const itemdlg::ParamRecord& record = parameter.record;
    const std::string row = "$" + encoding::EncodeUtf8(record.number) + ": ";
    const std::string value = encoding::EncodeUtf8(ValueTextOf(parameter));
    if (record.type == 'D') {
        return row + "a box says that " + Quoted(typed) + " is invalid; the value stays " + value;
    }
    return row +
           (typed.empty() ? "nothing was typed; the value stays "
                          : "the dialog takes " + Quoted(typed) + " as ") +
           value;
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
