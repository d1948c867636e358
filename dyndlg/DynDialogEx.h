// A dialog whose layout is put together in code instead of a resource.
//
//     CString name;
//     CDynDialogEx dialog(parent);
//     dialog.SetWindowTitle(_T("Name"));
//     dialog.AddDlgControl(_T("STATIC"), _T("Name:"), WS_CHILD | WS_VISIBLE, 0, nullptr, nullptr, 0);
//     dialog.AddDlgControl(_T("EDIT"), _T(""), WS_CHILD | WS_VISIBLE | WS_TABSTOP, WS_EX_CLIENTEDGE,
//                          nullptr, &name, 0);
//     if (dialog.DoModal() == IDOK)
//         ... name holds what was typed
//
// Construct, add controls, DoModal once, read the variables, destroy. The controls stay, so a second DoModal
// adds the standard buttons again.
//
// Coordinates are dialog units. The dialog owns its controls and the font that it makes for itself; a font
// that it is given and the variables belong to the caller and must outlive DoModal.
#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

#include "dyndlg/DialogLayout.h"
#include "dyndlg/DialogTemplate.h"
#include "dyndlg/DynDialogItemEx.h"
#include "memory/MemoryFence.h"

namespace tavrin::dyndlg {

class CDynDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDynDialogEx)

public:
    // `parent` may be null. Not owned.
    explicit CDynDialogEx(CWnd* parent = nullptr);
    ~CDynDialogEx() override;

    void SetWindowTitle(LPCTSTR caption) { m_caption = caption; }
    // The font of the dialog and its controls. Without one (or with null) the dialog itself takes its
    // parent's font, or else the application's main window's, while its controls get "MS Sans Serif" of
    // height 8.
    void SetFont(CFont* font) { m_font = font; }
    // Whether DoModal adds an OK and a Cancel button below the controls. It does by default.
    void SetUseSystemButtons(bool use) { m_addSystemButtons = use; }

    // Runs the dialog: IDOK, with the values in the caller's variables, or IDCANCEL; -1, after a message,
    // when the memory for the template cannot be had.
    INT_PTR DoModal() override;

    // The controls in the order in which they were added. GetItem throws CInvalidArgException* for an index
    // outside.
    INT_PTR GetItemCount() const { return static_cast<INT_PTR>(m_items.size()); }
    CDynDialogItemEx* GetItem(INT_PTR index) const;

    // As given to the constructor.
    virtual CWnd* GetParentWnd();

    // Adds a control that is created at run time, when the dialog opens. The result is its id.
    //
    // The class is given by its name or by its code, see ControlTypes.h: a name that is no known class is the
    // ProgID of an ActiveX control, a code that is none of the 19 makes a control that cannot be created. The
    // styles are taken as they are: WS_CHILD and WS_VISIBLE are the caller's to give. A null rectangle is the
    // next row, 12 high, from x 10 to 270 (by name) or 120 (by code). `data` is the variable to exchange the
    // value with, or null; what it must point to follows from class and style, see EExchange. With id 0 the
    // control gets an unused one.
    virtual UINT AddDlgControl(LPCTSTR className, LPCTSTR caption, DWORD style, DWORD exStyle,
                               const RECT* rect, void* data, UINT id);
    virtual UINT AddDlgControl(UINT typeCode, LPCTSTR caption, DWORD style, DWORD exStyle, const RECT* rect,
                               void* data, UINT id);

    // Adds a control that Windows creates with the dialog, from its template, for a derived class to
    // subclass. Only the classes of CT_BUTTON to CT_COMBOBOX can be created so.
    virtual UINT AddSubclassedDlgControl(LPCTSTR className, LPCTSTR caption, DWORD style, DWORD exStyle,
                                         const RECT* rect, UINT id);

    // The user requests help (F1).
    virtual BOOL OnHelpInfo(HELPINFO* help);

    BOOL OnInitDialog() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CDialog::WindowProc(message, wParam, lParam); });
    }
    void DoDataExchange(CDataExchange* pDX) override;
    // OK and Cancel end the dialog; every other command goes to the parent first.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    DECLARE_MESSAGE_MAP()

    // Of the template, in points; 0: DoModal takes it from the font.
    WORD m_fontSize = 0;
    // DoModal opens the dialog and returns at once; OK and Cancel destroy its window and take no values.
    bool m_modeless = false;

private:
    UINT Add(DynControl control, const RECT* rect, int defaultRight);
    void AddSystemButtons();
    LOGFONT ChooseTemplateFont();
    DialogTemplate DescribeTemplate(LPCTSTR faceName) const;
    INT_PTR Run(LPCDLGTEMPLATE dialogTemplate);

    CWnd* m_parent;  // not owned
    CString m_caption;
    CFont* m_font = nullptr;           // not owned
    std::unique_ptr<CFont> m_ownFont;  // what m_font points to by default
    bool m_addSystemButtons = true;
    CDialogLayout m_layout;
    std::vector<std::unique_ptr<CDynDialogItemEx>> m_items;
};

}  // namespace tavrin::dyndlg
