// Dialogs, from a resource or from a template in memory.
#pragma once

#include "afx/AfxControls.h"

// While a modal dialog runs, its owner (the given parent, or the top-level window above it) is disabled.
// DoModal runs a message loop of its own: each message is first offered to PreTranslateMessage of the
// window it is for, then of that window's parents up to the top.
class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

    CDialog() = default;
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    // For DoModal with a template in memory, which must live until DoModal returns; it replaces one
    // that was given before. FALSE when the dialog comes from a resource.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* initData = nullptr);

    // Modeless.
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr,
                                void* initData = nullptr);

    // The result given to EndDialog; -1 when the dialog could not be made. The dialog appears when no
    // message waits any more, so that one that ends at once is never seen.
    virtual INT_PTR DoModal();
    // Ends DoModal with this result as soon as the current message has been handled; may be called from
    // OnInitDialog. The owner is enabled before the dialog is destroyed.
    void EndDialog(int result);

    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }

    // Moves the data into the controls. TRUE lets Windows give the focus to the first control.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    DECLARE_MESSAGE_MAP()

    virtual void OnOK();      // moves the data out of the controls, and on success ends with IDOK
    virtual void OnCancel();  // ends with IDCANCEL

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    LPCTSTR m_lpszTemplateName = nullptr;
    CWnd* m_pParentWnd = nullptr;

private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND owner, void* initData);
    BOOL InitDialog();
    HWND FindOwner() const;
    void RunModalLoop();

    LPCDLGTEMPLATE m_template = nullptr;
    void* m_initData = nullptr;
    bool m_center = false;  // the template leaves the position to the framework
    bool m_modal = false;
    bool m_ended = false;
    int m_result = -1;
};
