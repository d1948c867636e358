// The routing of a message through a window: message maps, commands, notifications, reflection.
#include "afx/afxwin.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

BOOL CCmdTarget::Dispatch(AFX_MESSAGE& message) {
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->base != nullptr ? map->base() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->message != 0; ++entry) {
            if (entry->message == message.message && entry->code == message.code &&
                message.id >= entry->firstId && message.id <= entry->lastId) {
                return entry->call(this, message);
            }
        }
    }
    return FALSE;
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

namespace {

bool IsControlColor(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

// The message in the form in which message maps identify it.
AFX_MESSAGE MakeMapMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    AFX_MESSAGE result{message, wParam, lParam};
    if (IsControlColor(message)) {
        result.message = WM_CTLCOLOR;
        result.id = message - WM_CTLCOLORMSGBOX;
    } else if (message == WM_COMMAND) {
        result.id = LOWORD(wParam);
        // Without a control it comes from a menu or an accelerator; its code is then no notification.
        result.code = lParam != 0 ? HIWORD(wParam) : 0;
    } else if (message == WM_NOTIFY) {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        result.id = static_cast<UINT>(header->idFrom);
        result.code = header->code;
    }
    return result;
}

}  // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) {
        return result;
    }
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        *result = OnCommand(wParam, lParam);
        return *result != 0;
    }
    if (message == WM_NOTIFY) {
        return OnNotify(wParam, lParam, result);
    }
    AFX_MESSAGE mapMessage = MakeMapMessage(message, wParam, lParam);
    if (!Dispatch(mapMessage)) {
        return FALSE;
    }
    *result = mapMessage.result;
    return TRUE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_previousProcedure == nullptr) {
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    }
    return ::CallWindowProc(m_previousProcedure, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG* const message = GetCurrentMessage();
    return DefWindowProc(message->message, message->wParam, message->lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    // Deliberate, as in OnNotify: while UpdateData runs, the controls' notifications are dropped.
    if (lParam != 0 && (s_hWndExchanging == m_hWnd || ReflectLastMsg(reinterpret_cast<HWND>(lParam)))) {
        return TRUE;
    }
    AFX_MESSAGE message = MakeMapMessage(WM_COMMAND, wParam, lParam);
    return Dispatch(message);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (s_hWndExchanging == m_hWnd ||
        ReflectLastMsg(reinterpret_cast<const NMHDR*>(lParam)->hwndFrom, result)) {
        return TRUE;
    }
    AFX_MESSAGE message = MakeMapMessage(WM_NOTIFY, wParam, lParam);
    if (!Dispatch(message)) {
        return FALSE;
    }
    *result = message.result;
    return TRUE;
}

BOOL CWnd::ReflectLastMsg(HWND child, LRESULT* result) {
    CWnd* const control = FromHandlePermanent(child);
    return control != nullptr && control->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result) {
    const MSG* const message = GetCurrentMessage();
    return OnChildNotify(message->message, message->wParam, message->lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    AFX_MESSAGE reflected = MakeMapMessage(message, wParam, lParam);
    reflected.message += WM_REFLECT_BASE;
    if (!Dispatch(reflected)) {
        return FALSE;
    }
    if (result != nullptr) {
        *result = reflected.result;
    }
    return TRUE;
}

void CWnd::OnNcDestroy() {
    Default();
    Detach();
    PostNcDestroy();  // the object may be gone after this
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* control, UINT) {
    LRESULT brush = 0;
    if (control != nullptr && control->SendChildNotifyLastMsg(&brush)) {
        return reinterpret_cast<HBRUSH>(brush);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    if (item->CtlType == ODT_MENU || !ReflectLastMsg(item->hwndItem)) {
        Default();
    }
}

void CWnd::OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) {
    if (item->CtlType == ODT_MENU || !ReflectLastMsg(::GetDlgItem(m_hWnd, id))) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* bar) {
    if (bar == nullptr || !bar->SendChildNotifyLastMsg()) {
        Default();
    }
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* bar) {
    if (bar == nullptr || !bar->SendChildNotifyLastMsg()) {
        Default();
    }
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}
