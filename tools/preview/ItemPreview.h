// The item dialog without windows: the rows that it would show of a working file, the values that a user
// could give them, and the two files as OK would write them. All of it is the module's own code; only the
// host's distance format is asked for.
#pragma once

#include <functional>
#include <string>

#include "itemdlg/ItemContents.h"
#include "tools/files/Files.h"

struct SPreviewSettings {
    double scale = 1.0;                                // between the values in the files and those shown
    int mode = 0;                                      // 1 makes marked rows read-only
    tavrin::itemdlg::TextLookup texts;                 // of the resource module
    std::function<std::wstring(double)> distanceText;  // as the host shows a distance
};

class CItemPreview {
public:
    CItemPreview(const tavrin::itemdlg::TextLines& workingFile, SPreviewSettings settings);

    const tavrin::itemdlg::ItemContents& Contents() const { return m_contents; }

    // What the value column of a parameter's row shows; empty for an invalid type.
    std::wstring ValueTextOf(const tavrin::itemdlg::ItemParameter& parameter) const;

    // Types a value, as shown, into the row of the parameter with that number: a whole number, a real number,
    // or a distance in any of the host's forms. Throws CToolError when no one row has the number, when the
    // row is read-only, or when the value is none of its kind.
    void SetValue(const std::wstring& number, const std::wstring& value);

    // The lines of the two files as OK would leave them. The working file is the one that was read.
    tavrin::itemdlg::TextLines WorkingFileAfter(tavrin::itemdlg::TextLines lines) const;
    tavrin::itemdlg::TextLines TemplateFileAfter(tavrin::itemdlg::TextLines lines) const;

private:
    using Rewriter = void (*)(tavrin::itemdlg::TextLines&, const tavrin::itemdlg::ParamRecordMap&,
                              const tavrin::itemdlg::ValueTextOf&);

    tavrin::itemdlg::ItemParameter& FindRow(const std::wstring& number);
    tavrin::itemdlg::TextLines Rewritten(tavrin::itemdlg::TextLines lines, Rewriter rewrite) const;

    SPreviewSettings m_settings;
    tavrin::itemdlg::ItemContents m_contents;
};
