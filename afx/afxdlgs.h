// The system's own dialogs: files, colours, fonts.
#pragma once

#include "afx/afxwin.h"

// Each runs the system's dialog over its parent: IDOK when the user confirmed, else IDCANCEL.
class CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
    explicit CCommonDialog(CWnd* parent) { m_pParentWnd = parent; }

protected:
    HWND GetOwnerHandle() const { return m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : nullptr; }
};

class CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
    // The filter lists pairs of a description and a pattern, each ended by "|", with one "|" more at the
    // end. The last two arguments choose the dialog's style in MFC; here Windows chooses.
    explicit CFileDialog(BOOL openFile, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);
    INT_PTR DoModal() override;
    CString GetPathName() const { return m_path.c_str(); }  // the full path, after IDOK
    CString GetFileName() const;                            // its last part

private:
    OPENFILENAME m_ofn = {};
    BOOL m_openFile;
    CString m_defaultExtension;
    std::wstring m_filter;
    std::wstring m_path;
};

class CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);
    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }

private:
    CHOOSECOLOR m_cc = {};
};

class CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)
    explicit CFontDialog(LPLOGFONT initial = nullptr, DWORD flags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* printer = nullptr, CWnd* parent = nullptr);
    INT_PTR DoModal() override;
    void GetCurrentFont(LPLOGFONT font) { *font = m_lf; }

private:
    LOGFONT m_lf = {};
    CHOOSEFONT m_cf = {};
};
