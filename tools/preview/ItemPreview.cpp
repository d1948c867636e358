#include "tools/preview/ItemPreview.h"

#include <cmath>
#include <optional>
#include <utility>

#include "devhost/units/LinearUnits.h"
#include "itemdlg/NumberText.h"
#include "tools/cmdline/WholeNumber.h"
#include "tools/texts/CodePage.h"

namespace {

std::string Quoted(const std::wstring& text) {
    return "'" + Utf8Text(text) + "'";
}

}  // namespace

CItemPreview::CItemPreview(const tavrin::itemdlg::TextLines& workingFile, SPreviewSettings settings)
    : m_settings(std::move(settings)),
      m_contents(
          tavrin::itemdlg::ReadItem(workingFile, m_settings.scale, m_settings.mode, m_settings.texts)) {}

std::wstring CItemPreview::ValueTextOf(const tavrin::itemdlg::ItemParameter& parameter) const {
    const tavrin::itemdlg::ParamRecord& record = parameter.record;
    switch (record.type) {
        case 'D':
            return m_settings.distanceText(record.realValue);
        case 'I':
            return tavrin::itemdlg::IntText(record.intValue);
        case 'R':
            return tavrin::itemdlg::GeneralText(record.realValue);
        default:
            return {};
    }
}

tavrin::itemdlg::ItemParameter& CItemPreview::FindRow(const std::wstring& number) {
    tavrin::itemdlg::ItemParameter* found = nullptr;
    bool hasParameter = false;
    for (tavrin::itemdlg::ItemParameter& parameter : m_contents.parameters) {
        if (parameter.record.number != number) {
            continue;
        }
        hasParameter = true;
        if (parameter.row != tavrin::itemdlg::PR_SHOWN) {
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
    tavrin::itemdlg::ItemParameter& parameter = FindRow(number);
    if (!parameter.editable) {
        throw CToolError("parameter " + Quoted(number) + " is read-only in this mode");
    }
    tavrin::itemdlg::ParamRecord& record = parameter.record;
    if (record.type == 'I') {
        const std::optional<int> whole = WholeNumber<int>(Utf8Text(value));
        if (!whole) {
            throw CToolError("parameter " + Quoted(number) + " takes a whole number, not " + Quoted(value));
        }
        record.intValue = *whole;
        return;
    }
    const std::optional<double> real =
        record.type == 'D' ? ParseLinear(value) : WholeNumber<double>(Utf8Text(value));
    if (!real || !std::isfinite(*real)) {
        throw CToolError("parameter " + Quoted(number) +
                         (record.type == 'D' ? " takes a distance, not " : " takes a real number, not ") +
                         Quoted(value));
    }
    record.realValue = *real;
}

tavrin::itemdlg::TextLines CItemPreview::WorkingFileAfter(tavrin::itemdlg::TextLines lines) const {
    return Rewritten(std::move(lines), tavrin::itemdlg::RewriteWorkingFile);
}

tavrin::itemdlg::TextLines CItemPreview::TemplateFileAfter(tavrin::itemdlg::TextLines lines) const {
    return Rewritten(std::move(lines), tavrin::itemdlg::RewriteTemplateFile);
}

// The dialog asks rows for their values. A record that has none keeps the value that it was read with.
tavrin::itemdlg::TextLines CItemPreview::Rewritten(tavrin::itemdlg::TextLines lines, Rewriter rewrite) const {
    tavrin::itemdlg::ParamRecordMap records;
    for (const tavrin::itemdlg::ItemParameter& parameter : m_contents.parameters) {
        records[parameter.record.lineIndex] = parameter.record;
    }
    rewrite(lines, records, [this](const tavrin::itemdlg::ParamRecord& record) {
        return tavrin::itemdlg::ValueText(record, m_settings.scale);
    });
    return lines;
}
