// The item dialog without windows: the rows for a working file, their values, and the two files as OK would
// write them. Uses the module's own code; the host's distance format is a parameter.
#pragma once

#include <functional>
#include <string>

#include "itemdlg/ItemContents.h"
#include "tools/files/Files.h"

namespace tavrin::tools {

struct PreviewSettings {
    double scale = 1.0;                                // between the values in the files and those shown
    int mode = 0;                                      // 1 makes marked rows read-only
    itemdlg::TextLookup texts;                         // the texts of placeholders
    std::function<std::wstring(double)> distanceText;  // as the host shows a distance
};

class CItemPreview {
public:
    CItemPreview(const itemdlg::TextLines& workingFile, PreviewSettings settings);

    const itemdlg::ItemContents& Contents() const { return m_contents; }

    // The text of a parameter's value in the grid; empty for an invalid type.
    std::wstring ValueTextOf(const itemdlg::ItemParameter& parameter) const;

    // Types a value into the row of the parameter with that number: a whole number, a real number, or a
    // distance in any of the host's formats. Throws CToolError when there is no such row or more than one,
    // when it is read-only, and for an invalid value.
    void SetValue(const std::wstring& number, const std::wstring& value);

    // The lines of the two files as OK would write them. The working file is the one that was read.
    itemdlg::TextLines WorkingFileAfter(itemdlg::TextLines lines) const;
    itemdlg::TextLines TemplateFileAfter(itemdlg::TextLines lines) const;

private:
    using Rewriter = void (*)(itemdlg::TextLines&, const itemdlg::ParamRecordMap&,
                              const itemdlg::ValueTextOf&);

    itemdlg::ItemParameter& FindRow(const std::wstring& number);
    itemdlg::TextLines Rewritten(itemdlg::TextLines lines, Rewriter rewrite) const;

    PreviewSettings m_settings;
    itemdlg::ItemContents m_contents;
};

}  // namespace tavrin::tools
