// A custom-drawn window that displays named, typed values in two columns, grouped in collapsible sections.
//
// Put it on a dialog as the control of a placeholder (DDX_Control, SubclassDlgItem) or create it as any
// child window; fill it with AddSection and the typed Add functions; read the values back with GetItemValue:
//
//     const UINT section = m_grid.AddSection(L"Size");
//     const UINT width = m_grid.AddDoubleItem(section, L"Width", 80.0);
//     ...
//     double value = 0;
//     if (m_grid.GetItemValue(width, value)) ...
//
// Sections and items are identified by the ids that the Add functions return. The grid owns its records, its
// fonts and its scroll bar; custom items belong to the client. Filling it works before the window exists too.
// What else a client can call is in GridFilling.h, GridValues.h, GridRows.h, GridFocus.h, GridLook.h,
// GridWording.h and GridColoring.h.
//
// Coordinates are pixels of the client area. A setter repaints if the window exists. The owner is notified of
// changes by the user (WM_GRID_ITEM_CHANGED), not of what the client itself sets.
//
// The user edits the focused row's value: in a text edit laid over it, in a list or a calendar dropped down
// under it, or in a dialog, see EItemType and EEditMode. The grid owns the one editor that may be open; it
// ends when the grid or another window takes the focus.
//
// This class is only the window: its handlers pass their messages to the controllers and carry out the
// actions that these return.
#pragma once

#include <afxwin.h>

#include <string>

#include "propgrid/ActionRunner.h"
#include "propgrid/GridAccess.h"
#include "propgrid/GridFocus.h"
#include "propgrid/GridScrollBar.h"
#include "propgrid/GridTooltip.h"
#include "propgrid/controller/EditKeyController.h"
#include "propgrid/controller/KeyController.h"
#include "propgrid/controller/MouseController.h"
#include "propgrid/editors/GridEditors.h"
#include "propgrid/editors/GridMessages.h"
#include "propgrid/painter/GridPainter.h"

namespace tavrin::propgrid {

class CPropertyGrid : public CWnd, public CGridFocus, private IGridWindow {
    DECLARE_DYNAMIC(CPropertyGrid)

public:
    CPropertyGrid();
    ~CPropertyGrid() override;

    // Notifies the owner that the user changed an item (WM_GRID_ITEM_CHANGED). For custom items that take
    // their value from a window of their own; the grid notifies of all other changes.
    void NotifyChanged(UINT item) override;

    // What assistive technology calls the grid; empty at the start, which stands for the window's text. A
    // client sets it to the text of the label that is above the grid.
    void SetAccessibleName(const std::wstring& name) { m_access.SetName(name); }

    // ---- Editing

    // An open editor belongs to one row and stands on its cell. What moves, hides or changes that cell or its
    // item first ends the editor as EndEditing does: the typed text is stored in its own row, the owner is
    // notified, and then the operation goes on. The owner's handler may do anything, even remove the row that
    // the operation is about: the operation is then refused.
    //
    // These end the editor:
    //   SetFocusedItem, SetFocusedSection   for another row than the focused one, or none
    //   SetItemValue                        of its item; the new value is the one that stays
    //   SetItemEditable, SetItemUndefined   of its item, for the other state
    //   AddSection, AddItem, ...            in any section; the new row is complete before
    //   SetDisplayMode                      always
    //   SetSectionCollapsed                 of any section
    //   SetGutterWidth                      for another position
    //   EditFocusedItem, PressFocusedButton always
    //   resizing, moving or destroying the grid's window, and WM_SETFONT
    //   the arrow keys, "*", "/", "+" and "-" on a section, and the keys of keyboard editing while it is on
    //   pressing a mouse button, and scrolling by the wheel or the scroll bar
    //
    // ResetContents leaves it open; the item that it edits no longer exists, and its result is discarded. So
    // does everything else: a call that is refused or changes nothing, the values and properties of other
    // items, AcceptValues, colours, texts and flags, other keys and characters.

    // Whether every value can be edited with the keyboard alone; false by default. While it is on, for the
    // focused row:
    // - F2, F4 and Alt+Down open its editor: the edit with its text, the list, the calendar, the dialog;
    // - a printable character opens an in-place edit with that character in place of the text;
    // - Alt+Enter presses the "..." button: the dialog, or a custom item's OnButtonClicked;
    // - Space inverts a Boolean;
    // - Home, End, Page Up and Page Down focus the first or last row, or one a page away, and bring it into
    // view.
    // "*", "/" and, for a focused section, "+" and "-" keep their meaning. The first four do nothing on a row
    // that is not editable.
    void SetKeyboardEditing(bool on) { m_model.settings.keyboardEditing = on; }
    // What F2 and Alt+Enter do, whether keyboard editing is on or not: for a client's own keys, and for
    // assistive technology. The focused row is scrolled into view for an editor that opens in it.
    void EditFocusedItem();
    void PressFocusedButton();

    // Whether an in-place edit, a list or a calendar is open.
    bool IsEditing() const { return m_editors.IsOpen(); }
    // Ends it: the typed text becomes the value, a list or a calendar closes without a choice. For a client
    // that is about to read the values without the user having left the grid.
    void EndEditing();
    // For ICustomItem::SetStringValue: whether it is given the text that the edit was opened with, which the
    // user never touched or put back by Escape. An item whose text does not have all of its value then keeps
    // the value. False if the same text was typed again, and outside that call.
    bool IsEditUntouched() const { return m_actions.IsEditUntouched(); }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnMove(WPARAM zero, LPARAM position);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnEnable(WPARAM enabled, LPARAM zero);
    afx_msg LRESULT OnSetFont(WPARAM font, LPARAM redraw);
    afx_msg LRESULT OnGetFont(WPARAM zero, LPARAM alsoZero);
    afx_msg LRESULT OnSysColorChange(WPARAM zero, LPARAM alsoZero);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg LRESULT OnSysKeyDown(WPARAM key, LPARAM flags);
    afx_msg LRESULT OnSysChar(WPARAM character, LPARAM flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnChoiceMade(WPARAM index, LPARAM zero);
    afx_msg LRESULT OnEditDone(WPARAM text, LPARAM zero);
    afx_msg LRESULT OnDateChosen(WPARAM zero, LPARAM alsoZero);
    afx_msg LRESULT OnGetAccessible(WPARAM flags, LPARAM object);
    afx_msg LRESULT OnAccessRequest(WPARAM zero, LPARAM alsoZero);
    afx_msg LRESULT OnGotFocus(WPARAM window, LPARAM zero);
    DECLARE_MESSAGE_MAP()

private:
    CWnd& GetWindow() override { return *this; }
    void Repaint() override;
    void Relayout() override;
    void RelayoutLater() override;
    void LeaveEditor() override;
    void ValueChanged(Id item) override { m_access.NoteValue(item); }
    void StateChanged(Id item) override { m_access.NoteState(item); }
    void UpdateLayout() override;

    void Initialize();
    void SettleLayout();
    void UpdateView();
    PaintState GetPaintState() const;
    bool IsReadyForHitTest();
    bool IsReadyForKey();
    void RevealFocus();
    bool TakeFocus();
    bool BeginPress();
    bool ScrollTo(std::optional<int> position);
    void TurnWheel(int delta);
    UINT FindEditedItem() const;
    void TakeResult(const Actions& actions);

    CMouseController m_mouse{m_model, m_layout};
    CKeyController m_keys{m_model, m_layout};
    CEditKeyController m_editKeys{m_model, m_layout};
    GridFonts m_fonts;
    CGridPainter m_painter{m_model, m_layout, m_fonts};
    CGridEditors m_editors{*this, m_model, m_fonts};
    CGridScrollBar m_scrollBar;
    CGridTooltip m_tooltip{*this, m_model, m_layout, m_fonts};
    CActionRunner m_actions{{*this, m_model, m_mouse, m_editors, m_scrollBar, m_fonts}};
    CGridAccess m_access{*this, m_model, m_layout};
    bool m_layoutPending = false;  // rows were added that no layout knows yet
    bool m_creating = false;       // from PreCreateWindow to PreSubclassWindow, or to a failed creation
};

}  // namespace tavrin::propgrid
