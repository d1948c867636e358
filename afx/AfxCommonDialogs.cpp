// The system's own dialogs.
#include <algorithm>
#include <array>

#include "afx/afxdlgs.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

namespace {

constexpr size_t longestPath = 32768;  // characters that Windows can have in one

// The colours that the user mixed, kept while the module is loaded.
std::array<COLORREF, 16> customColors = [] {
    std::array<COLORREF, 16> colors;
    colors.fill(RGB(255, 255, 255));
    return colors;
}();

INT_PTR AsResult(BOOL confirmed) {
    return confirmed ? IDOK : IDCANCEL;
}

}  // namespace

CFileDialog::CFileDialog(BOOL openFile, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags,
                         LPCTSTR filter, CWnd* parent, DWORD, BOOL)
    : CCommonDialog(parent), m_openFile(openFile), m_defaultExtension(defaultExtension) {
    m_filter = filter != nullptr ? filter : L"";
    std::replace(m_filter.begin(), m_filter.end(), L'|', L'\0');
    m_path = fileName != nullptr ? fileName : L"";
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = flags | OFN_EXPLORER | OFN_ENABLESIZING;
}

INT_PTR CFileDialog::DoModal() {
    m_path.resize(longestPath);
    m_ofn.hwndOwner = GetOwnerHandle();
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : m_filter.c_str();
    m_ofn.lpstrDefExt = m_defaultExtension.IsEmpty() ? nullptr : m_defaultExtension.GetString();
    m_ofn.lpstrFile = m_path.data();
    m_ofn.nMaxFile = longestPath;
    const BOOL confirmed = m_openFile ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    m_path.resize(m_path.find(L'\0'));
    m_ofn.lpstrFile = nullptr;
    return AsResult(confirmed);
}

CString CFileDialog::GetFileName() const {
    return m_path.substr(m_path.find_last_of(L"\\/") + 1).c_str();
}

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : CCommonDialog(parent) {
    m_cc.lStructSize = sizeof m_cc;
    m_cc.rgbResult = initial;
    m_cc.lpCustColors = customColors.data();
    m_cc.Flags = flags | CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = GetOwnerHandle();
    return AsResult(::ChooseColor(&m_cc));
}

CFontDialog::CFontDialog(LPLOGFONT initial, DWORD flags, CDC* printer, CWnd* parent) : CCommonDialog(parent) {
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = flags;
    if (initial != nullptr) {
        m_lf = *initial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (printer != nullptr) {
        m_cf.hDC = printer->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = GetOwnerHandle();
    m_cf.lpLogFont = &m_lf;
    return AsResult(::ChooseFont(&m_cf));
}
