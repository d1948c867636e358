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

    // Types a value into the row of the parameter with that number, which takes it as the dialog does: a
    // whole or real number is what the text begins with, 0 when that is no number; a distance may have any of
    // the host's formats, and keeps its value when the text has none. Returns a remark, one line for the
    // user, when the value is not what was typed. Throws CToolError when there is no such row or more than
    // one, and when it is read-only.
    std::string SetValue(const std::wstring& number, const std::wstring& value);

    // The lines of the two files as OK would write them. The working file is the one that was read.
    itemdlg::TextLines WorkingFileAfter(itemdlg::TextLines lines) const;
    itemdlg::TextLines TemplateFileAfter(itemdlg::TextLines lines) const;

private:
    using Rewriter = void (*)(itemdlg::TextLines&, const itemdlg::ParamRecordMap&,
                              const itemdlg::ValueTextOf&);

    std::string RemarkOn(const itemdlg::ItemParameter& parameter, const std::wstring& typed) const;
    itemdlg::ItemParameter& FindRow(const std::wstring& number);
    itemdlg::TextLines Rewritten(itemdlg::TextLines lines, Rewriter rewrite) const;

    PreviewSettings m_settings;
    itemdlg::ItemContents m_contents;
};

}  // namespace tavrin::tools
