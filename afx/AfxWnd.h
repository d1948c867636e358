// CWnd: a window, its messages and its functions.
//
// Coordinates are pixels: of the window's client area where nothing else is said, of the screen or of the
// parent's client area where Windows means those.
#pragma once

#include "afx/AfxDC.h"
#include "afx/AfxMessageMap.h"

// The text of any window.
CString AfxTextOf(HWND window);

class CDataExchange;
class CRgn;
class CScrollBar;
struct CCreateContext;

// An object that a window is attached to is that window's permanent one: it gets the window's messages,
// FromHandle finds it, and its destructor destroys the window. FromHandle makes a temporary object for any
// other window; that one lives until the current message or command ends.
class CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)

    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // The special values of SetWindowPos.
    static const CWnd &wndTop, &wndBottom, &wndTopMost, &wndNoTopMost;

    static CWnd* PASCAL FromHandle(HWND window);
    static CWnd* PASCAL FromHandlePermanent(HWND window);  // null when no object is attached
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& other) const { return m_hWnd == other.m_hWnd; }
    BOOL Attach(HWND window);
    HWND Detach();

    // Takes over the messages of a window that exists; PreSubclassWindow is called before.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow();
    // Called once the object has its window, before the window's messages reach the object: when it is
    // being created as well as when it is subclassed.
    virtual void PreSubclassWindow() {}

    // A child window. The map of the object sees every message from WM_NCCREATE on.
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                        UINT id, CCreateContext* context = nullptr);
    // Any window. When it cannot be created the result is FALSE and PostNcDestroy has been called.
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect,
                          CWnd* parent, UINT id, LPVOID parameter = nullptr);
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y,
                          int width, int height, HWND parent, HMENU idOrMenu, LPVOID parameter = nullptr);
    // May change what the window is created with; FALSE ends the creation.
    virtual BOOL PreCreateWindow(CREATESTRUCT& create);
    virtual BOOL DestroyWindow();
    // Called last, when the window no longer exists.
    virtual void PostNcDestroy() {}

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    static const MSG* PASCAL GetCurrentMessage();
    virtual BOOL PreTranslateMessage(MSG* message);

    // Parent and owner. An owner that was set gets the notifications instead of the parent.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }
    void SetOwner(CWnd* owner) { m_hWndOwner = owner != nullptr ? owner->m_hWnd : nullptr; }

    // Controls.
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
    }

    // Text, font, style.
    void SetWindowText(LPCTSTR text) { ::SetWindowText(m_hWnd, text); }
    int GetWindowText(LPTSTR text, int maxCount) const { return ::GetWindowText(m_hWnd, text, maxCount); }
    void GetWindowText(CString& text) const;
    CFont* GetFont() const { return CFont::FromHandle((HFONT)::SendMessage(m_hWnd, WM_GETFONT, 0, 0)); }
    void SetFont(CFont* font, BOOL redraw = TRUE);
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    // FALSE when nothing changes. With flags, SetWindowPos is called with them to redraw the frame.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);

    // State.
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
        return ::SetTimer(m_hWnd, id, milliseconds, procedure);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }

    // Position and size.
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, (LPPOINT)rect, 2); }
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, (LPPOINT)rect, 2); }
    void MapWindowPoints(CWnd* to, LPRECT rect) const {
        ::MapWindowPoints(m_hWnd, to->m_hWnd, (LPPOINT)rect, 2);
    }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE) {
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
    }
    // insertAfter may be &wndTop, &wndBottom, &wndTopMost or &wndNoTopMost.
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags) {
        return ::SetWindowPos(m_hWnd, insertAfter != nullptr ? insertAfter->m_hWnd : nullptr, x, y, width,
                              height, flags);
    }
    // Centres over the given window, else over the owner of a pop-up and the parent of a child; a pop-up
    // stays inside the work area of the monitor.
    void CenterWindow(CWnd* over = nullptr);

    // Painting.
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);

    // The window's own scroll bars; bar is SB_VERT or SB_HORZ.
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    int SetScrollPos(int bar, int position, BOOL redraw = TRUE) {
        return ::SetScrollPos(m_hWnd, bar, position, redraw);
    }
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);

    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK) {
        return ::MessageBox(m_hWnd, text, caption, type);
    }

    // Data exchange between controls and members. FALSE when a DDX operation gave up. Meanwhile the window
    // gets no notifications from its controls.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

protected:
    DECLARE_MESSAGE_MAP()

    // The path of a message: WindowProc calls OnWndMsg (commands, notifications, then the map) and passes
    // what is left to DefWindowProc, which calls the window's previous procedure.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // DefWindowProc with the message being handled.
    LRESULT Default();

    // A command or notification reaches the control that it comes from first (OnChildNotify, the map's
    // reflected entries), then this window's map.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    static BOOL PASCAL ReflectLastMsg(HWND child, LRESULT* result = nullptr);

    virtual void DoDataExchange(CDataExchange* exchange);

    // What a window does with a message that its class has no entry for.
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy();
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnHelp() {}  // shows the program's help: the module has none
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);

private:
    friend class CAfxWindowHook;
    friend class CDataExchange;
    friend class CDialog;

    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void TakeMessages();

    static HWND s_hWndExchanging;  // the window whose UpdateData runs

    HWND m_hWndOwner = nullptr;
    WNDPROC m_previousProcedure = nullptr;  // null while the object does not get the window's messages
};
