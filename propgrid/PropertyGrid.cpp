#include "propgrid/PropertyGrid.h"

#include "memory/MemoryFence.h"
#include "propgrid/PressWatch.h"
#include "propgrid/controller/EditResult.h"
#include "propgrid/controller/EditorOpening.h"
#include "propgrid/controller/Focus.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

// The controllers know keys and scroll codes by the system's numbers.
static_assert(KEY_LEFT == VK_LEFT && KEY_UP == VK_UP && KEY_RIGHT == VK_RIGHT && KEY_DOWN == VK_DOWN);
static_assert(KEY_RETURN == VK_RETURN && KEY_PAGE_UP == VK_PRIOR && KEY_PAGE_DOWN == VK_NEXT &&
              KEY_END == VK_END && KEY_HOME == VK_HOME && KEY_F2 == VK_F2 && KEY_F4 == VK_F4);
static_assert(SC_LINE_UP == SB_LINEUP && SC_LINE_DOWN == SB_LINEDOWN && SC_PAGE_UP == SB_PAGEUP &&
              SC_PAGE_DOWN == SB_PAGEDOWN && SC_THUMB_POSITION == SB_THUMBPOSITION &&
              SC_THUMB_TRACK == SB_THUMBTRACK && SC_TOP == SB_TOP && SC_BOTTOM == SB_BOTTOM &&
              SC_END_SCROLL == SB_ENDSCROLL);

IMPLEMENT_DYNAMIC(CPropertyGrid, CWnd)

BEGIN_MESSAGE_MAP(CPropertyGrid, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_MESSAGE(WM_MOVE, &CPropertyGrid::OnMove)
    ON_MESSAGE(WM_PRINTCLIENT, &CPropertyGrid::OnPrintClient)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_ENABLE, &CPropertyGrid::OnEnable)
    ON_MESSAGE(WM_SETFONT, &CPropertyGrid::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CPropertyGrid::OnGetFont)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &CPropertyGrid::OnSysColorChange)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_VSCROLL()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_SYSKEYDOWN, &CPropertyGrid::OnSysKeyDown)
    ON_MESSAGE(WM_SYSCHAR, &CPropertyGrid::OnSysChar)
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_GRID_CHOICE_MADE, &CPropertyGrid::OnChoiceMade)
    ON_MESSAGE(WM_GRID_EDIT_DONE, &CPropertyGrid::OnEditDone)
    ON_MESSAGE(WM_GRID_DATE_CHOSEN, &CPropertyGrid::OnDateChosen)
    ON_MESSAGE(WM_GETOBJECT, &CPropertyGrid::OnGetAccessible)
    ON_MESSAGE(WM_GRID_ACCESS_REQUEST, &CPropertyGrid::OnAccessRequest)
    ON_MESSAGE(WM_SETFOCUS, &CPropertyGrid::OnGotFocus)
END_MESSAGE_MAP()

CPropertyGrid::CPropertyGrid() = default;

// The window goes while the grid is still whole; the base would destroy it after the members are gone.
CPropertyGrid::~CPropertyGrid() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

// ---- The window's life

BOOL CPropertyGrid::PreCreateWindow(CREATESTRUCT& create) {
    m_creating = true;
    return CWnd::PreCreateWindow(create);
}

// Runs for a window that is being created too, before it has a size; that one is initialized when its
// WM_CREATE comes.
void CPropertyGrid::PreSubclassWindow() {
    if (!m_creating) {
        Initialize();
    }
    m_creating = false;
    CWnd::PreSubclassWindow();
}

// Comes for a window that could not be created, too.
void CPropertyGrid::PostNcDestroy() {
    m_creating = false;
    CWnd::PostNcDestroy();
}

int CPropertyGrid::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1) {
        return -1;
    }
    Initialize();
    return 0;
}

void CPropertyGrid::Initialize() {
    CRect client;
    GetClientRect(&client);
    m_model.settings.gutter = client.Width() / 2;
    m_scrollBar.Forget();
    m_fonts.Create(GetParent());
    m_layout.SetView({.client = {},
                      .scrollBarWidth = 0,
                      .scrollPosition = 0,
                      .rowHeight = m_fonts.MeasureRowHeight(*this)});
    ModifyStyle(0, WS_CLIPCHILDREN);
    // A static control without SS_NOTIFY passes the mouse on to its dialog and is no tab stop. A grid that
    // replaces one needs both mouse and keyboard.
    wchar_t windowClass[16] = {};
    ::GetClassName(m_hWnd, windowClass, 16);
    if (_wcsicmp(windowClass, L"Static") == 0) {
        ModifyStyle(0, SS_NOTIFY | WS_TABSTOP);
    }
    TakeCaptions(GetParent());
    // Rows that were added before there was a window to lay them out in.
    if (m_model.GetRowCount() > 0) {
        Relayout();
    }
}

// A window that goes needs no layout.
LRESULT CPropertyGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        m_layoutPending = false;
    }
    return tavrin::memory::FenceMemory([&] {
        SettleLayout();
        m_tooltip.Watch(message, lParam, IsEditing());
        return CWnd::WindowProc(message, wParam, lParam);
    });
}

void CPropertyGrid::OnDestroy() {
    m_access.Disconnect();
    m_editors.Close();
    m_painter.ReleaseCanvas();
    CWnd::OnDestroy();
}

// ---- Layout

// Runs after every change of the rows, so it must not go through them: the row count is kept ready.
void CPropertyGrid::Relayout() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    m_layoutPending = false;
    UpdateView();
    if (m_layout.NeedsScrollBar()) {
        m_scrollBar.ShowFor(*this, m_layout.GetTotalHeight());
    } else {
        m_scrollBar.Hide();
    }
    Invalidate(TRUE);
}

// Rows are added many at a time, and the scroll bar costs more than they do: it follows with the next
// message. Asking for a repaint makes sure that there is one.
void CPropertyGrid::RelayoutLater() {
    if (GetSafeHwnd() != nullptr && !m_layoutPending) {
        m_layoutPending = true;
        Invalidate(TRUE);
    }
}

void CPropertyGrid::SettleLayout() {
    if (m_layoutPending) {
        Relayout();
    }
}

// Gives the layout the window's current size and scroll position; the scroll bar holds the position.
void CPropertyGrid::UpdateView() {
    CRect client;
    GetClientRect(&client);
    m_layout.SetView({.client = {static_cast<int>(client.Width()), static_cast<int>(client.Height())},
                      .scrollBarWidth = m_scrollBar.GetWidth(),
                      .scrollPosition = m_scrollBar.GetPosition(),
                      .rowHeight = m_layout.GetView().rowHeight});
}

void CPropertyGrid::UpdateLayout() {
    SettleLayout();
    UpdateView();
}

// Without a bar a new size deliberately changes nothing: no bar appears before the rows next change, and the
// divider stays where it is.
void CPropertyGrid::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    LeaveEditor();
    if (m_scrollBar.IsCreated()) {
        m_scrollBar.Place(*this);
        Relayout();
    }
}

LRESULT CPropertyGrid::OnMove(WPARAM /*zero*/, LPARAM /*position*/) {
    LeaveEditor();
    return Default();
}

// ---- Painting

void CPropertyGrid::Repaint() {
    if (GetSafeHwnd() != nullptr) {
        m_tooltip.Hide();
        Invalidate();
    }
}

PaintState CPropertyGrid::GetPaintState() const {
    return {.buttonPressed = m_mouse.IsButtonPressed(), .enabled = IsWindowEnabled() != FALSE};
}

// The whole window counts as painted, whatever a custom item did to it.
void CPropertyGrid::OnPaint() {
    {
        CPaintDC dc(this);
        UpdateView();
        if (m_painter.PaintWindow(dc, GetPaintState())) {
            ValidateRect(nullptr);
        }
    }
    if (GetSafeHwnd() != nullptr) {
        m_access.Report();
    }
}

// Painting covers every pixel; erasing first would only flicker.
BOOL CPropertyGrid::OnEraseBkgnd(CDC* /*dc*/) {
    return TRUE;
}

LRESULT CPropertyGrid::OnPrintClient(WPARAM dc, LPARAM /*flags*/) {
    UpdateView();
    m_painter.PaintCopy(*CDC::FromHandle(reinterpret_cast<HDC>(dc)), GetPaintState());
    return 0;
}

// ---- What the look depends on

// A static control's default handling would draw over the rows.
LRESULT CPropertyGrid::OnEnable(WPARAM /*enabled*/, LPARAM /*zero*/) {
    Repaint();
    return 0;
}

LRESULT CPropertyGrid::OnSetFont(WPARAM font, LPARAM /*redraw*/) {
    LeaveEditor();
    if (GetSafeHwnd() == nullptr) {
        return 0;
    }
    m_fonts.Replace(reinterpret_cast<HFONT>(font));
    GridView view = m_layout.GetView();
    view.rowHeight = m_fonts.MeasureRowHeight(*this);
    m_layout.SetView(view);
    m_tooltip.Hide();
    Relayout();
    return 0;
}

LRESULT CPropertyGrid::OnGetFont(WPARAM /*zero*/, LPARAM /*alsoZero*/) {
    return m_fonts.given != nullptr ? reinterpret_cast<LRESULT>(m_fonts.given) : Default();
}

LRESULT CPropertyGrid::OnSysColorChange(WPARAM /*zero*/, LPARAM /*alsoZero*/) {
    TakeSystemColors();
    Repaint();
    return Default();
}

// ---- The mouse

// Hit tests go by the rectangles of the last paint: paints what is still to be painted. False when a custom
// item that drew took the window away.
bool CPropertyGrid::IsReadyForHitTest() {
    UpdateWindow();
    if (GetSafeHwnd() == nullptr) {
        return false;
    }
    UpdateView();
    return true;
}

// Ends an open editor with its result. False when the owner's handler of the result destroyed the window.
bool CPropertyGrid::TakeFocus() {
    SetFocus();
    m_editors.Close();
    return GetSafeHwnd() != nullptr;
}

// False when the press is over by the time that the grid has the focus.
bool CPropertyGrid::BeginPress() {
    m_mouse.BeginPress();
    CPressWatch watch(m_hWnd);
    return TakeFocus() && !watch.HasLoopRun() && !watch.WasReleased() && IsReadyForHitTest();
}

void CPropertyGrid::OnLButtonDown(UINT flags, CPoint point) {
    if (BeginPress() && m_actions.Run(m_mouse.Press(ToPoint(point)))) {
        CWnd::OnLButtonDown(flags, point);
    }
}

void CPropertyGrid::OnMouseMove(UINT /*flags*/, CPoint point) {
    m_actions.Run(m_mouse.Move(ToPoint(point), IsEditing()));
}

void CPropertyGrid::OnLButtonUp(UINT /*flags*/, CPoint point) {
    if (!m_mouse.AwaitsRelease() || IsReadyForHitTest()) {
        m_actions.Run(m_mouse.Release(ToPoint(point)));
    }
}

void CPropertyGrid::OnLButtonDblClk(UINT /*flags*/, CPoint /*point*/) {
    m_actions.Run(m_mouse.DoubleClick());
}

void CPropertyGrid::OnCaptureChanged(CWnd* window) {
    if (window != this) {
        m_actions.Run(m_mouse.LoseCapture());
    }
    CWnd::OnCaptureChanged(window);
}

// ---- Scrolling

BOOL CPropertyGrid::OnMouseWheel(UINT flags, short delta, CPoint point) {
    TurnWheel(delta);
    return CWnd::OnMouseWheel(flags, delta, point);
}

// Scrolling by the wheel, too, ends an open editor, which would otherwise stay where its row was.
void CPropertyGrid::TurnWheel(int delta) {
    const auto findTarget = [&] { return FindWheelTarget(m_scrollBar.GetState(), delta, GetRowHeight()); };
    if (!m_scrollBar.IsShown() || !findTarget()) {
        return;
    }
    if ((delta > 0 && !IsEditing()) || TakeFocus()) {
        ScrollTo(findTarget());
    }
}

void CPropertyGrid::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    const bool isOwnBar = bar != nullptr && bar->GetSafeHwnd() == m_scrollBar.GetSafeHwnd();
    if (!m_scrollBar.IsShown() || !isOwnBar || code == SB_ENDSCROLL) {
        CWnd::OnVScroll(code, position, bar);
        return;
    }
    if (!TakeFocus()) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (ScrollTo(FindScrollTarget(m_scrollBar.GetState(), code, m_scrollBar.FindThumb(position),
                                  GetRowHeight(), client.Height()))) {
        CWnd::OnVScroll(code, position, bar);
    }
}

// False when there is nowhere to go.
bool CPropertyGrid::ScrollTo(std::optional<int> position) {
    if (position) {
        m_actions.Run({action::ScrollTo{*position}});
    }
    return position.has_value();
}

// ---- The keyboard

// Ends an open editor; false when that took the window away.
bool CPropertyGrid::IsReadyForKey() {
    LeaveEditor();
    return GetSafeHwnd() != nullptr && IsReadyForHitTest();
}

void CPropertyGrid::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    const bool isEditKey = m_editKeys.TakesKey(key);
    if (!isEditKey && !CKeyController::IsGridKey(key)) {
        CWnd::OnKeyDown(key, repeat, flags);
    } else if (IsReadyForKey()) {
        m_actions.Run(isEditKey ? m_editKeys.PressKey(key) : m_keys.PressKey(key, m_scrollBar.GetState()));
    }
}

// The default handling comes first, always: it notes that Alt is not pressed alone, which would open a menu.
LRESULT CPropertyGrid::OnSysKeyDown(WPARAM key, LPARAM /*flags*/) {
    const LRESULT result = Default();
    if (m_editKeys.TakesAltKey(static_cast<unsigned>(key)) && IsReadyForKey()) {
        m_actions.Run(m_editKeys.PressAltKey(static_cast<unsigned>(key)));
    }
    return result;
}

// The character of Alt+Enter has no other meaning; the default handling would beep.
LRESULT CPropertyGrid::OnSysChar(WPARAM character, LPARAM /*flags*/) {
    return character == VK_RETURN && m_editKeys.TakesAltKey(KEY_RETURN) ? 0 : Default();
}

void CPropertyGrid::EditFocusedItem() {
    if (IsReadyForKey()) {
        m_actions.Run(m_editKeys.EditFocusedItem());
    }
}

void CPropertyGrid::PressFocusedButton() {
    if (IsReadyForKey()) {
        m_actions.Run(m_editKeys.PressFocusedButton());
    }
}

void CPropertyGrid::OnChar(UINT character, UINT repeat, UINT flags) {
    const auto typed = static_cast<wchar_t>(character);
    if (m_editKeys.TakesCharacter(typed)) {
        if (IsReadyForKey()) {
            m_actions.Run(m_editKeys.TypeCharacter(typed));
        }
        return;
    }
    if (m_keys.ChangesSections(typed)) {
        LeaveEditor();
    }
    if (m_actions.Run(m_keys.TypeCharacter(typed))) {
        CWnd::OnChar(character, repeat, flags);
    }
}

// In a dialog the arrow keys and the characters come to the grid; Tab leaves it, Enter and Escape are the
// dialog's.
UINT CPropertyGrid::OnGetDlgCode() {
    return CWnd::OnGetDlgCode() | DLGC_WANTARROWS | DLGC_WANTCHARS;
}

// ---- Notification

void CPropertyGrid::NotifyChanged(UINT item) {
    ValueChanged(item);
    if (CWnd* const owner = GetOwner()) {
        owner->SendMessage(WM_GRID_ITEM_CHANGED, item, 0);
    }
}

// ---- Assistive technology

LRESULT CPropertyGrid::OnGetAccessible(WPARAM flags, LPARAM object) {
    const std::optional<LRESULT> answer = m_access.Answer(flags, object);
    return answer ? *answer : Default();
}

// The system reports that the window has the focus, the grid which row has it.
LRESULT CPropertyGrid::OnGotFocus(WPARAM /*window*/, LPARAM /*zero*/) {
    const LRESULT result = Default();
    m_access.NoteWindowFocus();
    m_access.Report();
    return result;
}

void CPropertyGrid::RevealFocus() {
    if (!IsReadyForHitTest()) {
        return;
    }
    if (const std::optional<action::ScrollTo> reveal = RevealFocusedRow(m_layout)) {
        m_actions.Run({*reveal});
    }
}

LRESULT CPropertyGrid::OnAccessRequest(WPARAM /*zero*/, LPARAM /*alsoZero*/) {
    const std::optional<AccessRequest> request = m_access.TakeRequest();
    if (!request || !IsWindowEnabled() || !TakeFocus() || !SetFocusedRow(request->row)) {
        return 0;
    }
    if (request->defaultAction && m_model.FindSection(request->row.section) != nullptr) {
        SetSectionCollapsed(request->row.section, !IsSectionCollapsed(request->row.section));
    } else if (request->defaultAction) {
        EditFocusedItem();
    } else {
        RevealFocus();
    }
    return 0;
}

// ---- The end of an editor

void CPropertyGrid::EndEditing() {
    if (IsEditing()) {
        SetFocus();
    }
    m_editors.Close();
}

void CPropertyGrid::LeaveEditor() {
    if (IsEditing()) {
        EndEditing();
    }
}

// The item that an editor's result is for. A new item with the id of a removed one does not get its text.
UINT CPropertyGrid::FindEditedItem() const {
    return m_editors.HasLostItsItem() ? NO_ID : GetFocusedItem();
}

// The list closed with a choice.
LRESULT CPropertyGrid::OnChoiceMade(WPARAM index, LPARAM /*zero*/) {
    TakeResult(TakeListChoice(m_model, FindEditedItem(), static_cast<int>(static_cast<INT_PTR>(index))));
    return 0;
}

// The in-place edit ended.
LRESULT CPropertyGrid::OnEditDone(WPARAM text, LPARAM /*zero*/) {
    TakeResult(TakeEditText(m_model, FindEditedItem(), reinterpret_cast<const wchar_t*>(text),
                            !m_editors.IsTextUntouched()));
    return 0;
}

// A date of the calendar was chosen.
LRESULT CPropertyGrid::OnDateChosen(WPARAM /*alsoZero*/, LPARAM /*zero*/) {
    if (const std::optional<DateValue> date = m_editors.GetCalendarDate()) {
        TakeResult(TakeCalendarDate(m_model, FindEditedItem(), *date));
    }
    return 0;
}

// An item that takes no such result deliberately leaves the editor alone. Otherwise the grid takes the editor
// out of m_editors first and destroys it last: the owner's handler, or a custom item's, runs in between and
// may re-enter, for example open another editor.
void CPropertyGrid::TakeResult(const Actions& actions) {
    if (!actions.empty() || m_editors.HasLostItsItem()) {
        const EditorPointer ended = m_editors.Take();
        m_actions.Run(actions);
        // The system would choose where the focus of a list or a calendar goes that is destroyed with it.
        const bool hasFocus =
            ended != nullptr && ended->GetSafeHwnd() != nullptr && ::GetFocus() == ended->m_hWnd;
        if (hasFocus && GetSafeHwnd() != nullptr) {
            SetFocus();
        }
    }
}

}  // namespace tavrin::propgrid
