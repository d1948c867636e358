#include "imagedlg/TavrinPreviewDlg.h"

#include "sds/FindFile.h"

namespace tavrin::imagedlg {

IMPLEMENT_DYNAMIC(CTavrinPreviewDlg, CDialog)

CTavrinPreviewDlg::CTavrinPreviewDlg(CWnd* parent) : CDialog(IDD, parent) {}

void CTavrinPreviewDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PREVIEW_PICTURE, m_picture);
}

BEGIN_MESSAGE_MAP(CTavrinPreviewDlg, CDialog)
END_MESSAGE_MAP()

BOOL CTavrinPreviewDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_picture.SetAccessibleName(m_name);
    if (const auto path = FindFile(std::wstring(m_name) + L".png")) {
        m_picture.LoadFromFile(path->c_str());
    }
    // In the corner of the screen on purpose, so that the drawing behind stays in sight.
    SetWindowPos(&wndTop, 100, 5, 0, 0, SWP_NOSIZE);
    return TRUE;
}

void CTavrinPreviewDlg::SetName(CString name) {
    m_name = name;
}

}  // namespace tavrin::imagedlg
