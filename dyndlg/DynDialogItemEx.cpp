#include "dyndlg/DynDialogItemEx.h"

#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdtctl.h>

#ifndef _MSC_VER
#include "dyndlg/ActiveXHost.h"
#endif

namespace tavrin::dyndlg {

IMPLEMENT_DYNAMIC(CDynDialogItemEx, CWnd)

BEGIN_MESSAGE_MAP(CDynDialogItemEx, CWnd)
END_MESSAGE_MAP()

EExchange CDynDialogItemEx::Exchange() const {
    return m_control.data != nullptr ? ExchangeOf(m_control.typeCode, m_control.style) : EX_NONE;
}

CWnd& CDynDialogItemEx::WindowObject() {
    return Exchange() == EX_CONTROL ? *static_cast<CWnd*>(m_control.data) : *this;
}

BOOL CDynDialogItemEx::CreateOn(CWnd& dialog, CFont& font) {
    // The dialog units are not known before the dialog has been created, so the rectangle counts as pixels
    // until PlaceOn.
    const DialogRect& rect = m_control.rect;
    CWnd& window = WindowObject();
    if (!window.CreateEx(m_control.exStyle, m_control.className, m_control.caption, m_control.style,
                         CRect(rect.left, rect.top, rect.right, rect.bottom), &dialog, m_control.id)) {
        return FALSE;
    }
    window.SetFont(&font, FALSE);
    return TRUE;
}

BOOL CDynDialogItemEx::PlaceOn(CDialog& dialog) {
    const DialogRect& rect = m_control.rect;
    CRect pixels(rect.left, rect.top, rect.right, rect.bottom);
    dialog.MapDialogRect(&pixels);
    if (m_control.typeCode == CT_ACTIVEX) {
        return CreateActiveXOn(dialog, pixels);
    }
    CWnd& window = WindowObject();
    return window.GetSafeHwnd() != nullptr &&
           window.SetWindowPos(nullptr, pixels.left, pixels.top, pixels.Width(), pixels.Height(),
                               SWP_NOZORDER);
}

BOOL CDynDialogItemEx::CreateActiveXOn(CWnd& dialog, const RECT& pixels) {
#ifdef _MSC_VER
    return CreateControl(m_control.className, m_control.caption, m_control.style, pixels, &dialog,
                         m_control.id);
#else
    if (!CreateEx(m_control.exStyle, AfxRegisterWndClass(0), m_control.caption, m_control.style, pixels,
                  &dialog, m_control.id)) {
        return FALSE;
    }
    if (CreateActiveXIn(m_hWnd, m_control.className)) {
        return TRUE;
    }
    DestroyWindow();
    return FALSE;
#endif
}

void CDynDialogItemEx::DoDataExchange(CDataExchange* pDX) {
    const int id = static_cast<int>(m_control.id);
    void* const data = m_control.data;
    if (::GetDlgItem(pDX->m_pDlgWnd->GetSafeHwnd(), id) == nullptr) {
        return;
    }
    switch (Exchange()) {
        case EX_NONE:
            break;
        case EX_RADIO:
            DDX_Radio(pDX, id, *static_cast<int*>(data));
            break;
        case EX_CHECK:
            DDX_Check(pDX, id, *static_cast<int*>(data));
            break;
        case EX_TEXT:
            DDX_Text(pDX, id, *static_cast<CString*>(data));
            break;
        case EX_SCROLL:
            DDX_Scroll(pDX, id, *static_cast<int*>(data));
            break;
        case EX_SLIDER:
            DDX_Slider(pDX, id, *static_cast<int*>(data));
            break;
        case EX_TIME:
            DDX_DateTimeCtrl(pDX, id, *static_cast<CTime*>(data));
            break;
        case EX_DATE:
            DDX_DateTimeCtrl(pDX, id, *static_cast<COleDateTime*>(data));
            break;
        case EX_CALENDAR_DATE:
            DDX_MonthCalCtrl(pDX, id, *static_cast<COleDateTime*>(data));
            break;
        case EX_CONTROL:
            DDX_Control(pDX, id, *static_cast<CWnd*>(data));
            break;
    }
}

}  // namespace tavrin::dyndlg
