// Dialogs and their modal loop.
#include "afx/AfxDialog.h"

#include "afx/AfxFence.h"
#include "afx/AfxWindowHook.h"
#include "afx/afxwin.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

// The beginning of an extended dialog template, which the Windows headers do not declare. Any template
// whose second word is 0xFFFF is one.
#pragma pack(push, 2)
struct DLGTEMPLATEEX {
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x, y, cx, cy;
};
#pragma pack(pop)

LPCDLGTEMPLATE LoadDialogTemplate(LPCTSTR name) {
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL memory = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    return static_cast<LPCDLGTEMPLATE>(memory != nullptr ? ::LockResource(memory) : nullptr);
}

// Whether the template gives no position: 0, 0 without a style that makes it one. Such a dialog is centred
// over its owner.
bool HasNoPosition(LPCDLGTEMPLATE dialogTemplate) {
    const auto* const extended = reinterpret_cast<const DLGTEMPLATEEX*>(dialogTemplate);
    const bool isExtended = extended->signature == 0xFFFF;
    const DWORD style = isExtended ? extended->style : dialogTemplate->style;
    const int x = isExtended ? extended->x : dialogTemplate->x;
    const int y = isExtended ? extended->y : dialogTemplate->y;
    return x == 0 && y == 0 && (style & (WS_CHILD | DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE)) == 0;
}

// Keeps the owner of a modal dialog disabled, and the top window of its chain of owners with it.
class CDisabledOwner {
public:
    explicit CDisabledOwner(HWND owner) : m_owner(Disable(owner)), m_top(Disable(FindTop(owner))) {}
    ~CDisabledOwner() { Enable(); }
    CDisabledOwner(const CDisabledOwner&) = delete;
    CDisabledOwner& operator=(const CDisabledOwner&) = delete;

    void Enable() {
        for (HWND* const window : {&m_top, &m_owner}) {
            if (*window != nullptr) {
                ::EnableWindow(*window, TRUE);
            }
            *window = nullptr;
        }
    }

private:
    static HWND FindTop(HWND owner) {
        HWND top = owner;
        for (HWND next = owner; next != nullptr; next = ::GetParent(next)) {
            top = next;
        }
        return top;
    }
    // The window if it was enabled, null if there is nothing to be undone.
    static HWND Disable(HWND window) {
        if (window == nullptr || window == ::GetDesktopWindow() || !::IsWindowEnabled(window)) {
            return nullptr;
        }
        ::EnableWindow(window, FALSE);
        return window;
    }

    HWND m_owner;
    HWND m_top;
};

// Offers a message to the objects from its window upwards, then lets Windows translate and deliver it.
void Pump(MSG& message) {
    const AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    for (HWND window = message.hwnd; window != nullptr; window = ::GetParent(window)) {
        if (CWnd* const object = CWnd::FromHandlePermanent(window)) {
            BOOL handled = TRUE;
            AfxGuard([&] { handled = object->PreTranslateMessage(&message); });
            if (handled) {
                return;
            }
        }
    }
    ::TranslateMessage(&message);
    ::DispatchMessage(&message);
}

}  // namespace

CDialog::CDialog(LPCTSTR templateName, CWnd* parent)
    : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

CDialog::CDialog(UINT templateId, CWnd* parent) : CDialog(MAKEINTRESOURCE(templateId), parent) {}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData) {
    if (m_lpszTemplateName != nullptr) {
        return FALSE;
    }
    m_template = dialogTemplate;
    m_initData = initData;
    if (parent != nullptr) {
        m_pParentWnd = parent;
    }
    return TRUE;
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent) {
    m_lpszTemplateName = templateName;
    const LPCDLGTEMPLATE dialogTemplate = LoadDialogTemplate(templateName);
    return dialogTemplate != nullptr && CreateIndirect(dialogTemplate, parent);
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    return Create(MAKEINTRESOURCE(templateId), parent);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData) {
    if (parent != nullptr) {
        m_pParentWnd = parent;
    }
    return CreateFromTemplate(dialogTemplate, FindOwner(), initData);
}

HWND CDialog::FindOwner() const {
    HWND owner = m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : AfxFindMainPopUp();
    while (owner != nullptr && (::GetWindowLong(owner, GWL_STYLE) & WS_CHILD) != 0) {
        owner = ::GetParent(owner);
    }
    return owner;
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, HWND owner, void* initData) {
    m_center = HasNoPosition(dialogTemplate);
    const CAfxWindowHook hook(this);
    const HWND window = ::CreateDialogIndirectParam(AfxGetResourceHandle(), dialogTemplate, owner,
                                                    DialogProcedure, reinterpret_cast<LPARAM>(initData));
    if (!hook.HasAttached()) {
        PostNcDestroy();
    }
    return window != nullptr;
}

INT_PTR CDialog::DoModal() {
    const LPCDLGTEMPLATE dialogTemplate =
        m_template != nullptr ? m_template : LoadDialogTemplate(m_lpszTemplateName);
    if (dialogTemplate == nullptr) {
        return -1;
    }
    const HWND owner = FindOwner();
    const HWND focus = ::GetFocus();
    CDisabledOwner disabledOwner(owner);
    m_modal = true;
    m_ended = false;
    m_result = -1;
    if (CreateFromTemplate(dialogTemplate, owner, m_initData)) {
        RunModalLoop();
    }
    m_modal = false;
    // The owner must be able to take the activation before the dialog goes, else Windows would give it to
    // some other program's window.
    disabledOwner.Enable();
    if (owner != nullptr && m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd) {
        ::SetActiveWindow(owner);
    }
    DestroyWindow();
    // A dialog restores the focus to its control, other windows keep it.
    if (owner != nullptr && ::GetFocus() == owner && ::IsChild(owner, focus)) {
        ::SetFocus(focus);
    }
    return m_result;
}

void CDialog::RunModalLoop() {
    bool shown = false;
    while (!m_ended && m_hWnd != nullptr) {
        MSG message;
        constexpr UINT waiting = PM_NOREMOVE | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE | PM_QS_INPUT;
        if (!shown && !::PeekMessage(&message, nullptr, 0, 0, waiting)) {
            shown = true;
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
        } else if (::GetMessage(&message, nullptr, 0, 0) > 0) {
            Pump(message);
        } else {
            // WM_QUIT: posted again, for the program's own message loop.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            m_ended = true;
        }
    }
}

void CDialog::EndDialog(int result) {
    if (!m_modal) {
        ::EndDialog(m_hWnd, result);
        return;
    }
    m_result = result;
    m_ended = true;
    PostMessage(WM_NULL);  // wakes the modal loop
}

BOOL CDialog::OnInitDialog() {
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

BOOL CDialog::InitDialog() {
    CRect before, after;
    GetWindowRect(&before);
    BOOL setFocus = FALSE;
    if (!AfxGuard([&] { setFocus = OnInitDialog(); })) {
        EndDialog(-1);
        return FALSE;
    }
    GetWindowRect(&after);
    if (m_center && before.TopLeft() == after.TopLeft() && !IsWindowVisible()) {
        CenterWindow();
    }
    return setFocus;
}

INT_PTR CALLBACK CDialog::DialogProcedure(HWND window, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    auto* const dialog = dynamic_cast<CDialog*>(FromHandlePermanent(window));
    return dialog == nullptr || dialog->InitDialog();
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Windows shows a dialog of style WS_VISIBLE when it has been made, even if it has ended already.
    if (message == WM_WINDOWPOSCHANGING && m_modal && m_ended) {
        reinterpret_cast<WINDOWPOS*>(lParam)->flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CDialog::PreTranslateMessage(MSG* message) {
    const bool isInput = (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) ||
                         (message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST);
    return CWnd::PreTranslateMessage(message) || (isInput && ::IsDialogMessage(m_hWnd, message));
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}
