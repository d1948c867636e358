#include "propgrid/GridDialogs.h"

#include <afxdlgs.h>
#include <afxdtctl.h>

#include "dyndlg/DynDialogEx.h"
#include "propgrid/FolderBrowser.h"

using namespace tavrin::dyndlg;

namespace {

constexpr DWORD labelStyle = WS_CHILD | WS_VISIBLE;
constexpr DWORD buttonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr DWORD textStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | ES_WANTRETURN |
                            ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE;
constexpr DWORD dateStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | DTS_RIGHTALIGN;
constexpr DWORD timeStyle = dateStyle | DTS_TIMEFORMAT;
static_assert(textStyle == 0x503110C4 && dateStyle == 0x50010020 && timeStyle == 0x50010029);

void SetLook(CDynDialogEx& dialog, const CGridDialogLook& look) {
    dialog.SetUseSystemButtons(false);
    dialog.SetWindowTitle(look.title.c_str());
    dialog.SetFont(look.font);
}

void AddControl(CDynDialogEx& dialog, LPCTSTR className, const std::wstring& caption, DWORD style,
                const CRect& units, void* data = nullptr, UINT id = 0, DWORD exStyle = 0) {
    dialog.AddDlgControl(className, caption.c_str(), style, exStyle, &units, data, id);
}

// As the calendar of the place has it; what cannot be one in local time has no parts.
CTime LocalTime(const COleDateTime& date) {
    if (date.GetStatus() != COleDateTime::valid) {
        return CTime(-1);
    }
    return CTime(date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHour(), date.GetMinute(),
                 date.GetSecond(), -1);
}

}  // namespace

bool AskForText(const CGridDialogLook& look, std::wstring& text) {
    CDynDialogEx dialog(look.parent);
    SetLook(dialog, look);
    CString edited = text.c_str();
    AddControl(dialog, L"EDIT", L"", textStyle, CRect(7, 7, 200, 100), &edited, 0, WS_EX_CLIENTEDGE);
    AddControl(dialog, L"BUTTON", look.texts.ok, buttonStyle, CRect(56, 106, 106, 120), nullptr, IDOK);
    AddControl(dialog, L"BUTTON", look.texts.cancel, buttonStyle, CRect(110, 106, 160, 120), nullptr,
               IDCANCEL);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    text = edited.GetString();
    return true;
}

bool AskForDateTime(const CGridDialogLook& look, COleDateTime& date) {
    CDynDialogEx dialog(look.parent);
    SetLook(dialog, look);
    COleDateTime day = date;
    CTime time = LocalTime(date);
    AddControl(dialog, L"STATIC", look.texts.date, labelStyle, CRect(7, 3, 60, 12));
    AddControl(dialog, L"STATIC", look.texts.time, labelStyle, CRect(67, 3, 120, 12));
    AddControl(dialog, DATETIMEPICK_CLASS, L"", dateStyle, CRect(7, 13, 60, 26), &day);
    AddControl(dialog, DATETIMEPICK_CLASS, L"", timeStyle, CRect(67, 13, 120, 26), &time);
    AddControl(dialog, L"BUTTON", look.texts.ok, buttonStyle, CRect(7, 37, 60, 51), nullptr, IDOK);
    AddControl(dialog, L"BUTTON", look.texts.cancel, buttonStyle, CRect(67, 37, 120, 51), nullptr, IDCANCEL);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    // Parts of a date or a time that is none are -1 each, which no date has.
    date.SetDateTime(day.GetYear(), day.GetMonth(), day.GetDay(), time.GetHour(), time.GetMinute(),
                     time.GetSecond());
    return true;
}

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

bool AskForColor(CWnd* parent, COLORREF& color) {
    CColorDialog dialog(color, 0, parent);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    color = dialog.GetColor();
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
