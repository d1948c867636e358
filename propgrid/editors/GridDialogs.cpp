#include "propgrid/editors/GridDialogs.h"

#include <afxdlgs.h>
#include <afxdtctl.h>

#include "dyndlg/DynDialogEx.h"
#include "propgrid/editors/FolderBrowser.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

namespace {

constexpr DWORD kLabelStyle = WS_CHILD | WS_VISIBLE;
constexpr DWORD kButtonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kTextStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | ES_WANTRETURN |
                             ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE;
constexpr DWORD kDateStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | DTS_RIGHTALIGN;
constexpr DWORD kTimeStyle = kDateStyle | DTS_TIMEFORMAT;
static_assert(kTextStyle == 0x503110C4 && kDateStyle == 0x50010020 && kTimeStyle == 0x50010029);

void SetLook(dyndlg::CDynDialogEx& dialog, const GridDialogLook& look, const std::wstring& title) {
    dialog.SetUseSystemButtons(false);
    dialog.SetWindowTitle(title.c_str());
    dialog.SetFont(look.font);
}

void AddControl(dyndlg::CDynDialogEx& dialog, LPCTSTR className, const std::wstring& caption, DWORD style,
                const CRect& units, void* data = nullptr, UINT id = 0, DWORD exStyle = 0) {
    dialog.AddDlgControl(className, caption.c_str(), style, exStyle, &units, data, id);
}

// The time of day, on a day that a CTime can hold and on which no clock is changed: that of the date need not
// be one. What is no date has no parts.
CTime TimeOfDay(const COleDateTime& date) {
    if (date.GetStatus() != COleDateTime::valid) {
        return CTime(-1);
    }
    return CTime(2000, 1, 1, date.GetHour(), date.GetMinute(), date.GetSecond());
}

// Each of these shows the value, and is true when the user confirmed; the value is then what was chosen, else
// it is unchanged.

// A text of several lines, ended by CR LF each.
bool AskForText(const GridDialogLook& look, const std::wstring& title, std::wstring& text) {
    dyndlg::CDynDialogEx dialog(look.parent);
    SetLook(dialog, look, title);
    CString edited = text.c_str();
    AddControl(dialog, L"EDIT", L"", kTextStyle, CRect(7, 7, 200, 100), &edited, 0, WS_EX_CLIENTEDGE);
    AddControl(dialog, L"BUTTON", look.texts.ok, kButtonStyle, CRect(56, 106, 106, 120), nullptr, IDOK);
    AddControl(dialog, L"BUTTON", look.texts.cancel, kButtonStyle, CRect(110, 106, 160, 120), nullptr,
               IDCANCEL);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    text = edited.GetString();
    return true;
}

// A choice that does not make a date and a time leaves the old date with the status invalid.
bool AskForDateTime(const GridDialogLook& look, const std::wstring& title, COleDateTime& date) {
    dyndlg::CDynDialogEx dialog(look.parent);
    SetLook(dialog, look, title);
    COleDateTime day = date;
    CTime time = TimeOfDay(date);
    AddControl(dialog, L"STATIC", look.texts.date, kLabelStyle, CRect(7, 3, 60, 12));
    AddControl(dialog, L"STATIC", look.texts.time, kLabelStyle, CRect(67, 3, 120, 12));
    AddControl(dialog, DATETIMEPICK_CLASS, L"", kDateStyle, CRect(7, 13, 60, 26), &day);
    AddControl(dialog, DATETIMEPICK_CLASS, L"", kTimeStyle, CRect(67, 13, 120, 26), &time);
    AddControl(dialog, L"BUTTON", look.texts.ok, kButtonStyle, CRect(7, 37, 60, 51), nullptr, IDOK);
    AddControl(dialog, L"BUTTON", look.texts.cancel, kButtonStyle, CRect(67, 37, 120, 51), nullptr, IDCANCEL);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    // Parts of a date or a time that is none are -1 each, which no date has.
    date.SetDateTime(day.GetYear(), day.GetMonth(), day.GetDay(), time.GetHour(), time.GetMinute(),
                     time.GetSecond());
    return true;
}

// `filter` is that of CFileDialog, empty for none.
bool AskForFile(CWnd* parent, const std::wstring& filter, std::wstring& path) {
    // The dialog does not open on a name that is longer than it could be.
    const std::wstring initial = path.size() < MAX_PATH ? path : std::wstring();
    CFileDialog dialog(TRUE, nullptr, initial.c_str(), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       filter.empty() ? nullptr : filter.c_str(), parent, 0, TRUE);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    path = dialog.GetPathName().GetString();
    return true;
}

// `title` is the text over the tree, for this and all later ones; null leaves it.
bool AskForFolder(CWnd* parent, const std::wstring* title, std::wstring& path) {
    if (title != nullptr) {
        FolderBrowseTitle() = *title;
    }
    std::wstring chosen = path;
    if (!BrowseForFolder(chosen, parent != nullptr ? parent->GetSafeHwnd() : nullptr) || chosen.empty()) {
        return false;
    }
    path = chosen;
    return true;
}

bool AskForColor(CWnd* parent, Color& color) {
    CColorDialog dialog(color, 0, parent);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    color = static_cast<Color>(dialog.GetColor());
    return true;
}

bool AskForFont(CWnd* parent, LOGFONTW& font) {
    LOGFONTW initial = font;
    // A face name that fills its field has no end.
    initial.lfFaceName[LF_FACESIZE - 1] = L'\0';
    CFontDialog dialog(&initial, CF_SCREENFONTS | CF_EFFECTS, nullptr, parent);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    dialog.GetCurrentFont(&font);
    return true;
}

// Edits a copy of the value.
template <class T, class TAsk>
std::optional<Value> AskForCopy(T value, TAsk ask) {
    return ask(value) ? std::optional<Value>(std::move(value)) : std::nullopt;
}

std::optional<Value> AskForDateValue(const GridDialogLook& look, const GridItem& item) {
    COleDateTime date = ToOleDate(std::get<DateValue>(item.value));
    return AskForDateTime(look, item.name, date) ? std::optional<Value>(ToDateValue(date)) : std::nullopt;
}

std::optional<Value> AskForFontValue(const GridDialogLook& look, const GridItem& item) {
    LOGFONTW font = ToLogFont(*std::get<FontPointer>(item.value));
    return AskForFont(look.parent, font) ? std::optional<Value>(ToFontPointer(font)) : std::nullopt;
}

}  // namespace

std::optional<Value> AskForValue(const GridDialogLook& look, const GridItem& item) {
    const std::wstring title = item.name;
    const std::wstring option = item.GetOption();
    const bool hasOption = !item.options.empty();
    switch (item.kind) {
        case IT_TEXT:
            return AskForCopy(std::get<std::wstring>(item.value),
                              [&](std::wstring& text) { return AskForText(look, title, text); });
        case IT_DATETIME:
            return AskForDateValue(look, item);
        case IT_FILE:
            return AskForCopy(std::get<std::wstring>(item.value),
                              [&](std::wstring& path) { return AskForFile(look.parent, option, path); });
        case IT_FOLDER:
            return AskForCopy(std::get<std::wstring>(item.value), [&](std::wstring& path) {
                return AskForFolder(look.parent, hasOption ? &option : nullptr, path);
            });
        case IT_COLOR:
            return AskForCopy(std::get<Color>(item.value),
                              [&](Color& color) { return AskForColor(look.parent, color); });
        case IT_FONT:
            return AskForFontValue(look, item);
        default:
            return std::nullopt;
    }
}

}  // namespace tavrin::propgrid
