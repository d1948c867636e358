#include "dyndlg/DynDialogEx.h"

#include <afxcmn.h>

#include <string_view>
#include <utility>

#include "dyndlg/LocalMemory.h"

namespace tavrin::dyndlg {

IMPLEMENT_DYNAMIC(CDynDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDynDialogEx, CDialog)
    ON_WM_CREATE()
    ON_WM_HELPINFO()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

namespace {

constexpr DWORD kDialogStyle = WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_SETFONT;
constexpr DWORD kDialogExStyle = WS_EX_DLGMODALFRAME;

LOGFONT DefaultFont() {
    LOGFONT font = {};
    font.lfHeight = 8;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, _T("MS Sans Serif"), LF_FACESIZE);
    return font;
}

// Reads the font that a window reports (WM_GETFONT). False if there is no window or it reports none.
bool ReadFontOf(const CWnd* window, LOGFONT& font) {
    if (window == nullptr || window->GetSafeHwnd() == nullptr) {
        return false;
    }
    const auto handle = reinterpret_cast<HGDIOBJ>(::SendMessage(window->GetSafeHwnd(), WM_GETFONT, 0, 0));
    return handle != nullptr && ::GetObject(handle, sizeof(font), &font) != 0;
}

// The window classes of the newer common controls must be registered before they can be used.
void RegisterCommonControls() {
    INITCOMMONCONTROLSEX classes = {
        sizeof(classes), ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES | ICC_INTERNET_CLASSES};
    ::InitCommonControlsEx(&classes);
}

}  // namespace

CDynDialogEx::CDynDialogEx(CWnd* parent) : m_parent(parent) {}

// Destroys the controls in the reverse order of their adding; a vector does not guarantee any order.
CDynDialogEx::~CDynDialogEx() {
    while (!m_items.empty()) {
        m_items.pop_back();
    }
}

CWnd* CDynDialogEx::GetParentWnd() {
    return m_parent;
}

CDynDialogItemEx* CDynDialogEx::GetItem(INT_PTR index) const {
    if (index < 0 || index >= GetItemCount()) {
        AfxThrowInvalidArgException();
    }
    return m_items[static_cast<size_t>(index)].get();
}

// ---- Adding controls

UINT CDynDialogEx::AddDlgControl(LPCTSTR className, LPCTSTR caption, DWORD style, DWORD exStyle,
                                 const RECT* rect, void* data, UINT id) {
    return Add({.className = className,
                .typeCode = TypeCodeOfClass(className),
                .id = id,
                .style = style,
                .exStyle = exStyle,
                .caption = caption,
                .data = data},
               rect, 270);
}

UINT CDynDialogEx::AddDlgControl(UINT typeCode, LPCTSTR caption, DWORD style, DWORD exStyle, const RECT* rect,
                                 void* data, UINT id) {
    return Add({.className = ClassOfTypeCode(typeCode),
                .typeCode = typeCode,
                .id = id,
                .style = style,
                .exStyle = exStyle,
                .caption = caption,
                .data = data},
               rect, 120);
}

UINT CDynDialogEx::AddSubclassedDlgControl(LPCTSTR className, LPCTSTR caption, DWORD style, DWORD exStyle,
                                           const RECT* rect, UINT id) {
    return Add({.className = className,
                .typeCode = TypeCodeOfClass(className),
                .id = id,
                .style = style,
                .exStyle = exStyle,
                .caption = caption,
                .subclassed = true},
               rect, 270);
}

UINT CDynDialogEx::Add(DynControl control, const RECT* rect, int defaultRight) {
    // One counter for all dialogs: two that are open at the same time share no assigned id.
    static UINT nextId = 1024;
    if (control.id == 0) {
        control.id = nextId++;
    }
    if (rect != nullptr) {
        const DialogRect given = {rect->left, rect->top, rect->right, rect->bottom};
        control.rect = m_layout.Place(&given, defaultRight);
    } else {
        control.rect = m_layout.Place(nullptr, defaultRight);
    }
    m_items.push_back(std::make_unique<CDynDialogItemEx>(control));
    return control.id;
}

void CDynDialogEx::AddSystemButtons() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    const auto add = [this](LPCTSTR caption, const DialogRect& rect, UINT id) {
        const CRect area(rect.left, rect.top, rect.right, rect.bottom);
        AddDlgControl(CT_BUTTON, caption, kStyle, 0, &area, nullptr, id);
    };
    const StandardButtonRects rects = m_layout.StartStandardButtons();
    add(_T("OK"), rects.ok, IDOK);
    add(_T("Annuleren"), rects.cancel, IDCANCEL);  // deliberately Dutch in every language
}

// ---- Running

INT_PTR CDynDialogEx::DoModal() {
    if (m_addSystemButtons) {
        AddSystemButtons();
    }
    const LOGFONT font = ChooseTemplateFont();
    // Deliberately lfHeight itself, not converted to points: -11, say, becomes 65525.
    if (m_fontSize == 0) {
        m_fontSize = LOWORD(font.lfHeight);
    }
    const DialogTemplate dialog = DescribeTemplate(font.lfFaceName);

    CLocalMemory memory(TemplateSize(dialog));
    if (memory.IsNull()) {
        AfxMessageBox(_T("CDynDialogEx::DoModal() : LocalAllock Failed"));  // deliberately misspelt
        return -1;
    }
    const CLocalLock lock(memory);
    if (lock.IsNull()) {
        memory.Free();
        AfxMessageBox(_T("CDynDialogEx::DoModal() : LocalLock Failed"));
        return -1;
    }
    WriteTemplate(dialog, lock.Bytes());
    return Run(reinterpret_cast<LPCDLGTEMPLATE>(lock.Bytes().data()));
}

LOGFONT CDynDialogEx::ChooseTemplateFont() {
    LOGFONT font = {};
    if (m_font != nullptr && m_font->GetSafeHandle() != nullptr && m_font->GetLogFont(&font) != 0) {
        return font;
    }
    if (ReadFontOf(GetParentWnd(), font) || ReadFontOf(AfxGetMainWnd(), font)) {
        return font;
    }
    return DefaultFont();
}

// The result refers to strings of the dialog and to `faceName`, which must outlive it.
DialogTemplate CDynDialogEx::DescribeTemplate(LPCTSTR faceName) const {
    DialogTemplate dialog = {.style = kDialogStyle,
                             .exStyle = kDialogExStyle,
                             .extent = m_layout.Extent(),
                             .caption = m_caption.GetString(),
                             .pointSize = m_fontSize,
                             .faceName = faceName};
    for (const auto& item : m_items) {
        const DynControl& control = item->Control();
        if (control.subclassed) {
            dialog.items.push_back({.style = control.style,
                                    .exStyle = control.exStyle,
                                    .rect = control.rect,
                                    .id = control.id,
                                    .typeCode = control.typeCode,
                                    .caption = control.caption.GetString()});
        }
    }
    return dialog;
}

INT_PTR CDynDialogEx::Run(LPCDLGTEMPLATE dialogTemplate) {
    if (m_modeless) {
        return CreateIndirect(dialogTemplate, GetParentWnd());
    }
    if (!InitModalIndirect(dialogTemplate, GetParentWnd())) {
        return -1;
    }
    return CDialog::DoModal();
}

int CDynDialogEx::OnCreate(LPCREATESTRUCT create) {
    if (CDialog::OnCreate(create) == -1) {
        return -1;
    }
    RegisterCommonControls();
    if (m_font == nullptr) {
        const LOGFONT font = DefaultFont();
        m_ownFont = std::make_unique<CFont>();
        m_ownFont->CreateFontIndirect(&font);
        m_font = m_ownFont.get();
    }
    for (const auto& item : m_items) {
        const DynControl& control = item->Control();
        if (!control.subclassed && control.typeCode != CT_ACTIVEX && !item->CreateOn(*this, *m_font)) {
            AfxMessageBox(_T("Failed to create DlgItem."));
        }
    }
    return 0;
}

BOOL CDynDialogEx::OnInitDialog() {
    for (const auto& item : m_items) {
        if (item->Control().subclassed || item->PlaceOn(*this)) {
            continue;
        }
        // Deliberately the same text for an ActiveX control that could not be created, and a second message
        // for a control that OnCreate has reported already.
        CString message;
        message.Format(_T("Failed SetWindowPos for control %s."), item->Control().className.GetString());
        AfxMessageBox(message);
    }
    CDialog::OnInitDialog();
    CenterWindow();
    return TRUE;
}

// Deliberately from the last control to the first.
void CDynDialogEx::DoDataExchange(CDataExchange* pDX) {
    for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
        (*item)->DoDataExchange(pDX);
    }
}

// ---- Messages

BOOL CDynDialogEx::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    // Whatever the notification is: a double click on OK is OK too.
    if (id == IDOK) {
        OnOK();
        return TRUE;
    }
    if (id == IDCANCEL) {
        OnCancel();
        return TRUE;
    }
    CWnd* const parent = GetParentWnd();
    if (id != 0 && parent != nullptr && parent->GetSafeHwnd() != nullptr) {
        parent->SendMessage(WM_COMMAND, wParam, lParam);
    }
    return CDialog::OnCommand(wParam, lParam);
}

void CDynDialogEx::OnOK() {
    if (m_modeless) {
        DestroyWindow();
    } else {
        CDialog::OnOK();
    }
}

void CDynDialogEx::OnCancel() {
    if (m_modeless) {
        DestroyWindow();
    } else {
        CDialog::OnCancel();
    }
}

BOOL CDynDialogEx::OnHelpInfo(HELPINFO*) {
    CWnd::OnHelp();
    return TRUE;
}

}  // namespace tavrin::dyndlg
