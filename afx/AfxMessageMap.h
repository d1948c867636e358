// Message maps: tables that lead a window's messages to the operations of its class.
//
//     BEGIN_MESSAGE_MAP(CNoteDlg, CDialog)
//         ON_WM_SIZE()
//         ON_BN_CLICKED(IDC_CLEAR, OnClear)
//     END_MESSAGE_MAP()
//
// A message that a class has no entry for goes to the map of its base class. The macros compile only
// when the operation that an entry names has the signature that MFC documents for it, and belongs to a class
// of windows (to a command target for commands and notifications).
#pragma once

#include "afx/AfxObject.h"

class CCmdTarget;

// A message on its way through the maps. For WM_COMMAND and WM_NOTIFY the code and the id say which entry
// is meant, for all others they are 0. A message that a parent hands back to the control it is about
// carries WM_REFLECT_BASE in its number.
struct AFX_MESSAGE {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    UINT code = 0;
    UINT id = 0;
    LRESULT result = 0;
};

constexpr UINT WM_REFLECT_BASE = 0xBC00;
constexpr UINT WM_CTLCOLOR = 0x0019;  // stands in maps for the seven WM_CTLCOLOR… messages

struct AFX_MSGMAP_ENTRY {
    UINT message;  // 0 ends the table
    UINT code;
    UINT firstId, lastId;
    // TRUE when the message is dealt with.
    BOOL (*call)(CCmdTarget* target, AFX_MESSAGE& message);
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*base)();  // null in the last map of the chain
    const AFX_MSGMAP_ENTRY* entries;
};

// The base of everything that has a message map.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const { return GetThisMessageMap(); }

    // Calls the first entry that fits, this class's before its base's. FALSE when there is none or it
    // left the message to others.
    BOOL Dispatch(AFX_MESSAGE& message);
};

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                    \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                           \
        return GetThisMessageMap();                                               \
    }                                                                             \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                             \
        using ThisClass [[maybe_unused]] = theClass;                              \
        static const AFX_MSGMAP* (*const base)() = &baseClass::GetThisMessageMap; \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                          \
    { 0, 0, 0, 0, nullptr }                        \
    }                                              \
    ;                                              \
    static const AFX_MSGMAP map = {base, entries}; \
    return &map;                                   \
    }

// One entry: `member` points to the operation, which becomes an operation of `owner` (CCmdTarget for commands
// and notifications, CWnd for all other messages) as documented, the types name its parameters, the statement
// calls it as (self->*operation).
#define AFX_ENTRY(number, code, firstId, lastId, owner, member, resultType, types, statement)         \
    {number, static_cast<UINT>(code), static_cast<UINT>(firstId), static_cast<UINT>(lastId),          \
     [](CCmdTarget* target, [[maybe_unused]] AFX_MESSAGE& m) -> BOOL {                                \
         resultType(owner::*const operation) types = static_cast<resultType(owner::*) types>(member); \
         [[maybe_unused]] auto* const self = static_cast<owner*>(target);                             \
         statement;                                                                                   \
         return TRUE;                                                                                 \
     }},
#define AFX_ENTRY_VOID(number, member, types, arguments) \
    AFX_ENTRY(number, 0, 0, 0, CWnd, member, void, types, (self->*operation) arguments)
#define AFX_ENTRY_RESULT(number, member, resultType, types, arguments) \
    AFX_ENTRY(number, 0, 0, 0, CWnd, member, resultType, types,        \
              m.result = static_cast<LRESULT>((self->*operation) arguments))

// Parts of a message's parameters.
#define AFX_POINT CPoint(m.lParam)
#define AFX_WORDS_OF(parameter) LOWORD(parameter), HIWORD(parameter)
#define AFX_WINDOW(parameter) CWnd::FromHandle((HWND)(parameter))

// The window's own life.
#define ON_WM_NCCREATE() \
    AFX_ENTRY_RESULT(WM_NCCREATE, &ThisClass::OnNcCreate, BOOL, (LPCREATESTRUCT), ((LPCREATESTRUCT)m.lParam))
#define ON_WM_CREATE() \
    AFX_ENTRY_RESULT(WM_CREATE, &ThisClass::OnCreate, int, (LPCREATESTRUCT), ((LPCREATESTRUCT)m.lParam))
#define ON_WM_DESTROY() AFX_ENTRY_VOID(WM_DESTROY, &ThisClass::OnDestroy, (), ())
#define ON_WM_NCDESTROY() AFX_ENTRY_VOID(WM_NCDESTROY, &ThisClass::OnNcDestroy, (), ())
#define ON_WM_SHOWWINDOW() \
    AFX_ENTRY_VOID(WM_SHOWWINDOW, &ThisClass::OnShowWindow, (BOOL, UINT), ((BOOL)m.wParam, (UINT)m.lParam))
#define ON_WM_SIZE() \
    AFX_ENTRY_VOID(WM_SIZE, &ThisClass::OnSize, (UINT, int, int), ((UINT)m.wParam, AFX_WORDS_OF(m.lParam)))

// Painting.
#define ON_WM_PAINT() AFX_ENTRY_VOID(WM_PAINT, &ThisClass::OnPaint, (), ())
#define ON_WM_ERASEBKGND() \
    AFX_ENTRY_RESULT(WM_ERASEBKGND, &ThisClass::OnEraseBkgnd, BOOL, (CDC*), (CDC::FromHandle((HDC)m.wParam)))
// The kind of the control (CTLCOLOR_EDIT, …) comes as the message's id.
#define ON_WM_CTLCOLOR()                                                                            \
    AFX_ENTRY(                                                                                      \
        WM_CTLCOLOR, 0, 0, CTLCOLOR_MAX, CWnd, &ThisClass::OnCtlColor, HBRUSH, (CDC*, CWnd*, UINT), \
        m.result = (LRESULT)(self->*operation)(CDC::FromHandle((HDC)m.wParam), AFX_WINDOW(m.lParam), m.id))
// A null brush leaves the message to the parent.
#define ON_WM_CTLCOLOR_REFLECT()                                                                          \
    AFX_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, 0, 0, CTLCOLOR_MAX, CWnd, &ThisClass::CtlColor, HBRUSH,      \
              (CDC*, UINT), m.result = (LRESULT)(self->*operation)(CDC::FromHandle((HDC)m.wParam), m.id); \
              if (m.result == 0) return FALSE)
#define ON_WM_DRAWITEM()                                                         \
    AFX_ENTRY_VOID(WM_DRAWITEM, &ThisClass::OnDrawItem, (int, LPDRAWITEMSTRUCT), \
                   ((int)m.wParam, (LPDRAWITEMSTRUCT)m.lParam))
#define ON_WM_MEASUREITEM()                                                               \
    AFX_ENTRY_VOID(WM_MEASUREITEM, &ThisClass::OnMeasureItem, (int, LPMEASUREITEMSTRUCT), \
                   ((int)m.wParam, (LPMEASUREITEMSTRUCT)m.lParam))

// The mouse. Points are in client coordinates, the wheel's in screen coordinates.
#define AFX_ON_MOUSE(number, member) \
    AFX_ENTRY_VOID(number, member, (UINT, CPoint), ((UINT)m.wParam, AFX_POINT))
#define ON_WM_LBUTTONDOWN() AFX_ON_MOUSE(WM_LBUTTONDOWN, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_ON_MOUSE(WM_LBUTTONUP, &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_ON_MOUSE(WM_LBUTTONDBLCLK, &ThisClass::OnLButtonDblClk)
#define ON_WM_MOUSEMOVE() AFX_ON_MOUSE(WM_MOUSEMOVE, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEWHEEL()                                                                 \
    AFX_ENTRY_RESULT(WM_MOUSEWHEEL, &ThisClass::OnMouseWheel, BOOL, (UINT, short, CPoint), \
                     (LOWORD(m.wParam), (short)HIWORD(m.wParam), AFX_POINT))
#define ON_WM_CAPTURECHANGED() \
    AFX_ENTRY_VOID(WM_CAPTURECHANGED, &ThisClass::OnCaptureChanged, (CWnd*), (AFX_WINDOW(m.lParam)))

// The keyboard.
#define AFX_ON_KEY(number, member) \
    AFX_ENTRY_VOID(number, member, (UINT, UINT, UINT), ((UINT)m.wParam, AFX_WORDS_OF(m.lParam)))
#define ON_WM_KEYDOWN() AFX_ON_KEY(WM_KEYDOWN, &ThisClass::OnKeyDown)
#define ON_WM_CHAR() AFX_ON_KEY(WM_CHAR, &ThisClass::OnChar)
#define ON_WM_GETDLGCODE() AFX_ENTRY_RESULT(WM_GETDLGCODE, &ThisClass::OnGetDlgCode, UINT, (), ())
#define ON_WM_KILLFOCUS() \
    AFX_ENTRY_VOID(WM_KILLFOCUS, &ThisClass::OnKillFocus, (CWnd*), (AFX_WINDOW(m.wParam)))
#define ON_WM_HELPINFO() \
    AFX_ENTRY_RESULT(WM_HELP, &ThisClass::OnHelpInfo, BOOL, (HELPINFO*), ((HELPINFO*)m.lParam))

// Scroll bars; the third argument is null for the window's own.
#define AFX_ON_SCROLL(number, member)                         \
    AFX_ENTRY_VOID(number, member, (UINT, UINT, CScrollBar*), \
                   (AFX_WORDS_OF(m.wParam), static_cast<CScrollBar*>(AFX_WINDOW(m.lParam))))
#define ON_WM_VSCROLL() AFX_ON_SCROLL(WM_VSCROLL, &ThisClass::OnVScroll)
#define ON_WM_HSCROLL() AFX_ON_SCROLL(WM_HSCROLL, &ThisClass::OnHScroll)

// Any message by its number.
#define ON_MESSAGE(number, member) \
    AFX_ENTRY_RESULT(number, member, LRESULT, (WPARAM, LPARAM), (m.wParam, m.lParam))

// Commands and notifications of controls.
#define ON_CONTROL(code, id, member) \
    AFX_ENTRY(WM_COMMAND, code, id, id, CCmdTarget, member, void, (), (self->*operation)())
#define ON_CONTROL_RANGE(code, firstId, lastId, member) \
    AFX_ENTRY(WM_COMMAND, code, firstId, lastId, CCmdTarget, member, void, (UINT), (self->*operation)(m.id))
#define ON_COMMAND(id, member) ON_CONTROL(0, id, member)
#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_NOTIFY(code, id, member)                                                  \
    AFX_ENTRY(WM_NOTIFY, code, id, id, CCmdTarget, member, void, (NMHDR*, LRESULT*), \
              (self->*operation)((NMHDR*)m.lParam, &m.result))
// In the map of the control itself, which its parent asks first.
#define ON_CONTROL_REFLECT(code, member)                                                   \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0xFFFF, CCmdTarget, member, void, (), \
              (self->*operation)())
#define ON_NOTIFY_REFLECT(code, member)                                                                     \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, code, 0, UINT_MAX, CCmdTarget, member, void, (NMHDR*, LRESULT*), \
              (self->*operation)((NMHDR*)m.lParam, &m.result))
