// The preview dialog: one picture that fills the window. It has no buttons; Enter ends it with IDOK, Escape
// and the close box with IDCANCEL.
#pragma once

#include <afxwin.h>

#include "imagedlg/PictureCtrl.h"
#include "memory/MemoryFence.h"
#include "res/resource.h"

namespace tavrin::imagedlg {

class CTavrinPreviewDlg : public CDialog {
    DECLARE_DYNAMIC(CTavrinPreviewDlg)

public:
    enum { IDD = IDD_PREVIEW };

    explicit CTavrinPreviewDlg(CWnd* parent = nullptr);

    // The picture's name without its extension ".png", as the host's search takes it. To be set before
    // DoModal. A picture that the host does not find leaves the window empty, without a message.
    virtual void SetName(CString name);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CDialog::WindowProc(message, wParam, lParam); });
    }
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    DECLARE_MESSAGE_MAP()

private:
    CPictureCtrl m_picture;
    CString m_name;
};

}  // namespace tavrin::imagedlg
