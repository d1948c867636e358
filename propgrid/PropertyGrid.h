// A self-drawn window that shows named, typed values in two columns, grouped in collapsible sections.
//
// Put it on a dialog as the control of a placeholder (DDX_Control, SubclassDlgItem) or create it as any
// child window; fill it with AddSection and the typed adds; read the values back with GetItemValue:
//
//     const UINT section = m_grid.AddSection(L"Size");
//     const UINT width = m_grid.AddDoubleItem(section, L"Width", 80.0);
//     ...
//     double value = 0;
//     if (m_grid.GetItemValue(width, value)) ...
//
// Sections and items are known by the ids that their adds return. The grid owns its records, its fonts
// and its scroll bar; custom items belong to the client. Filling it works before the window exists too.
//
// Coordinates are pixels of the client area. A setter repaints if the window exists. Nothing that the
// client itself sets is notified; a change by the user is, see WM_GRID_ITEM_CHANGED.
//
// The user edits the focused row's value: in a text edit laid over it, in a list or a calendar dropped down
// under it, or in a dialog, see EItemType and EEditMode. The grid owns the one editor that may be open; it
// ends when the grid or another window takes the focus.
#pragma once

#include <afxwin.h>
#include <atlcomtime.h>

#include <memory>
#include <string>
#include <vector>

#include "propgrid/GridContents.h"
#include "propgrid/GridItem.h"
#include "propgrid/GridMessages.h"
#include "propgrid/ICustomItem.h"

class CMemoryCanvas;

class CPropertyGrid : public CWnd {
    DECLARE_DYNAMIC(CPropertyGrid)

public:
    // The id that stands for no section and no item.
    static constexpr UINT NO_ID = CGridContents::NO_ID;

    // Display modes of SetDisplayMode. A flat list has no header rows and ignores collapsed flags.
    enum EDisplayMode : UINT {
        DM_CATEGORIZED = 0,  // section headers, collapsed sections hide their items
        DM_SORTED = 1,       // flat, sorted by item name (code units, so B comes before a)
        DM_FLAT = 2,         // flat, in section and insertion order
    };

    CPropertyGrid();
    ~CPropertyGrid() override;

    // ---- Filling

    // Adds a section before the one whose id is `before`, at the end when no section has that id.
    // Returns its id; ids are given in the order of adding, from 0.
    UINT AddSection(const std::wstring& name, bool collapsed = false, UINT before = NO_ID);

    // Appends an item of any kind to a section; the typed adds below are made of it. `value` points to
    // an int, a double, a std::wstring, a bool, a COleDateTime, a COLORREF or a LOGFONTW, whichever the
    // kind stores (see EItemType); for IT_CUSTOM it is the ICustomItem* itself.
    //
    // Returns the item's id, from 0 in the order of adding. Returns NO_ID, and changes nothing, when no
    // section has that id, when the section has an item of exactly this name already, when the kind is
    // unknown or when `value` is null.
    //
    // An item that is not editable shows in a colour of its own and opens no editor. An undefined one
    // shows the grid's undefined text in place of its value, and GetItemValue fails for it; a custom item
    // never is undefined.
    UINT AddItem(UINT section, EItemType kind, const std::wstring& name, const void* value,
                 bool editable = true, bool undefined = false);

    UINT AddStringItem(UINT section, const std::wstring& name, const std::wstring& value,
                       bool editable = true, bool undefined = false);
    // A text may hold line breaks (CR LF), which show as a pilcrow.
    UINT AddTextItem(UINT section, const std::wstring& name, const std::wstring& value, bool editable = true,
                     bool undefined = false);
    // `format` is a printf format for exactly one int, or one double. It is the client's contract: it is
    // passed to CString::Format as it stands. An empty one stands for the default.
    UINT AddIntegerItem(UINT section, const std::wstring& name, int value, const std::wstring& format = L"%d",
                        bool editable = true, bool undefined = false);
    UINT AddDoubleItem(UINT section, const std::wstring& name, double value,
                       const std::wstring& format = L"%g", bool editable = true, bool undefined = false);
    // `value` is an index into `choices`; one that is out of range shows an empty value.
    UINT AddComboItem(UINT section, const std::wstring& name, const std::vector<std::wstring>& choices,
                      int value, bool editable = true, bool undefined = false);
    UINT AddBooleanItem(UINT section, const std::wstring& name, bool value, bool editable = true,
                        bool undefined = false);
    // `format` is that of COleDateTime::Format; without one the value shows as the user's locale writes
    // a date, or a date with its time. A null date shows an empty text.
    UINT AddDateItem(UINT section, const std::wstring& name, const COleDateTime& value,
                     const std::wstring& format = {}, bool editable = true, bool undefined = false);
    UINT AddDateTimeItem(UINT section, const std::wstring& name, const COleDateTime& value,
                         const std::wstring& format = {}, bool editable = true, bool undefined = false);
    // `filter` is that of CFileDialog. A path too long for its column shows shortened in the middle.
    UINT AddFileItem(UINT section, const std::wstring& name, const std::wstring& path,
                     const std::wstring& filter, bool editable = true, bool undefined = false);
    // `title` is the text over the folder browser's tree.
    UINT AddFolderItem(UINT section, const std::wstring& name, const std::wstring& path,
                       const std::wstring& title, bool editable = true, bool undefined = false);
    UINT AddColorItem(UINT section, const std::wstring& name, COLORREF value, bool editable = true,
                      bool undefined = false);
    UINT AddFontItem(UINT section, const std::wstring& name, const LOGFONTW& value, bool editable = true,
                     bool undefined = false);
    // The item stays the client's and must live as long as the grid holds it; its m_pGrid becomes this
    // grid. Null is refused (NO_ID).
    UINT AddCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable = true);

    // Removes all sections and items; ids start at 0 again. Deliberately leaves the focused ids alone: a
    // new row that gets the id of the focused one shows as focused.
    void ResetContents();

    // ---- Values

    // The value of an item. False, and `value` untouched, when no item has that id, when the item is
    // undefined, or when its kind stores another type: int is Integer and Combo, a string is String,
    // Text, File and Folder, a date is Date and DateTime.
    bool GetItemValue(UINT item, int& value) const;
    bool GetItemValue(UINT item, double& value) const;
    bool GetItemValue(UINT item, std::wstring& value) const;
    bool GetItemValue(UINT item, bool& value) const;
    bool GetItemValue(UINT item, COleDateTime& value) const;
    bool GetItemValue(UINT item, COLORREF& value) const;
    bool GetItemValue(UINT item, LOGFONTW& value) const;
    bool GetItemValue(UINT item, ICustomItem*& value) const;

    // Gives an item a value, which also makes it defined. The saved copy stays, so a different value
    // shows as modified. False when no item has that id or when its kind stores another type.
    bool SetItemValue(UINT item, int value);
    bool SetItemValue(UINT item, double value);
    bool SetItemValue(UINT item, const std::wstring& value);
    bool SetItemValue(UINT item, bool value);
    bool SetItemValue(UINT item, const COleDateTime& value);
    bool SetItemValue(UINT item, COLORREF value);
    bool SetItemValue(UINT item, const LOGFONTW& value);
    // Puts another custom item into the row; null is refused.
    bool SetItemValue(UINT item, ICustomItem* value);
    // A literal would otherwise be taken for a bool.
    bool SetItemValue(UINT item, const wchar_t* value) { return SetItemValue(item, std::wstring(value)); }

    // Takes the saved copies of all items anew, so that nothing is modified any more; custom items are
    // told to accept their values.
    void AcceptValues();
    // False also when no item has that id. A custom item marks its changes itself and never counts.
    bool IsItemModified(UINT item) const;

    // Tells the owner that the user changed an item (WM_GRID_ITEM_CHANGED). For custom items that take
    // their value from a window of their own; all other changes the grid notifies by itself.
    void NotifyChanged(UINT item);

    // ---- Sections and items

    // The setters are false when no item, or section, has that id; the getters then give false, an
    // empty text or 0.
    bool SetItemEditable(UINT item, bool editable);
    bool IsItemEditable(UINT item) const;
    // Custom items cannot be undefined (false).
    bool SetItemUndefined(UINT item, bool undefined);
    bool IsItemUndefined(UINT item) const;
    std::wstring GetItemName(UINT item) const;
    // The kind of an item; false, and `kind` untouched, when no item has that id.
    bool GetItemKind(UINT item, EItemType& kind) const;
    // The text that the value column shows, before a long path is shortened; point sizes are those of
    // the screen. Empty for a custom item.
    std::wstring GetItemText(UINT item) const;

    bool SetSectionCollapsed(UINT section, bool collapsed);
    bool IsSectionCollapsed(UINT section) const;
    std::wstring GetSectionName(UINT section) const;

    std::size_t GetSectionCount() const { return m_contents.GetSections().size(); }
    std::size_t GetItemCount() const { return m_contents.GetItemCount(); }
    std::size_t GetSectionItemCount(UINT section) const;

    // The focused row: an item or a section, at most one of the two. Focusing one takes the focus from
    // the other; NO_ID takes it from both. False, and nothing changes, when there is no such row.
    bool SetFocusedItem(UINT item);
    bool SetFocusedSection(UINT section);
    UINT GetFocusedItem() const { return m_focusedItem; }
    UINT GetFocusedSection() const { return m_focusedSection; }

    // ---- Where things were painted

    // The rectangles that the last paint recorded. Those of a row that was not drawn are empty, but for
    // the item's name and the section's header, which then are the whole row; the items of a collapsed
    // section keep what an earlier paint gave them. False when no item, or section, has that id.
    bool GetItemRects(UINT item, CRect& name, CRect& value) const;
    bool GetSectionRects(UINT section, CRect& glyph, CRect& header) const;
    // Where a press counts as one on the focused item's edit button, as the last paint recorded it that drew
    // an editable focused item with an editor. Empty from a move of the focus to that paint.
    CRect GetEditButtonRect() const { return m_editButtonRect; }
    int GetRowHeight() const { return m_rowHeight; }
    // From the left edge of the value rectangle to the value's text; custom items place theirs alike.
    int GetTextMargin() const { return TEXT_MARGIN; }

    // ---- Editing

    // An open editor belongs to one row and stands on its cell. What moves, hides or changes that cell or its
    // item first ends the editor as EndEditing does: the typed text is stored in its own row and notified,
    // then the operation goes on. The owner may do anything when it is notified, also remove the row that the
    // operation is about: the operation is then refused.
    //
    // These end the editor:
    //   SetFocusedItem, SetFocusedSection   for another row than the focused one, or none
    //   SetItemValue                        of its item; the new value is the one that stays
    //   SetItemEditable, SetItemUndefined   of its item, for the other state
    //   AddSection, AddItem, typed adds     in any section; the new row is complete before
    //   ResetContents, SetDisplayMode       always
    //   SetSectionCollapsed                 of any section
    //   SetGutterWidth                      for another position
    //   another size or place of the grid's window, and its end
    //   the arrow keys, "*", "/", a press of the mouse, the wheel, the scroll bar
    //
    // All else leaves it open on its cell: whatever is refused or sets what is set already, the values and
    // properties of other items, AcceptValues, colours, texts and flags, other keys and characters.

    // Whether an in-place edit, a list or a calendar is open.
    bool IsEditing() const { return m_editor != nullptr && m_editor->GetSafeHwnd() != nullptr; }
    // Ends it: the typed text becomes the value, a list or a calendar closes without a choice. For a client
    // that is about to read the values without the user having left the grid.
    void EndEditing();
    // For ICustomItem::SetStringValue: whether it is given the text that the edit was opened with, which the
    // user never touched or put back by Escape. An item whose text does not show all of its value then keeps
    // the value. False for the same text typed anew, and outside of that call.
    bool IsEditUntouched() const { return m_editUntouched; }

    // ---- Appearance

    // One of EDisplayMode; the initial one is DM_CATEGORIZED. Any other number shows as DM_FLAT.
    void SetDisplayMode(UINT mode);
    UINT GetDisplayMode() const { return m_displayMode; }

    // The x position of the divider between the columns; half the client width at the start.
    void SetGutterWidth(int x);
    int GetGutterWidth() const { return m_gutter; }

    // Display flags, all true at the start: shade the header rows and the band at the left; lines
    // between rows; the vertical divider; whether items that are not editable can have the focus.
    void SetShadeHeaders(bool shade) { Change(m_shadeHeaders, shade); }
    bool GetShadeHeaders() const { return m_shadeHeaders; }
    void SetDrawLines(bool draw) { Change(m_drawLines, draw); }
    bool GetDrawLines() const { return m_drawLines; }
    void SetDrawDivider(bool draw) { Change(m_drawDivider, draw); }
    bool GetDrawDivider() const { return m_drawDivider; }
    void SetFocusNonEditable(bool focus) { Change(m_focusNonEditable, focus); }
    bool GetFocusNonEditable() const { return m_focusNonEditable; }

    // Font flags, both false at the start: bold values where modified, where editable. With both set an
    // editable value is bold, modified or not.
    void SetBoldModified(bool bold) { Change(m_boldModified, bold); }
    bool GetBoldModified() const { return m_boldModified; }
    void SetBoldEditable(bool bold) { Change(m_boldEditable, bold); }
    bool GetBoldEditable() const { return m_boldEditable; }

    // The values of Boolean items ("True", "False").
    void SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText);
    std::wstring GetBooleanText(bool value) const { return value ? m_texts.trueText : m_texts.falseText; }
    // The buttons of the grid's dialogs. Empty until the grid is initialised, which then takes the texts
    // of its parent's controls 1 and 2, or "OK" and "Cancel".
    void SetOkText(const std::wstring& text) { Change(m_texts.ok, text); }
    std::wstring GetOkText() const { return m_texts.ok; }
    void SetCancelText(const std::wstring& text) { Change(m_texts.cancel, text); }
    std::wstring GetCancelText() const { return m_texts.cancel; }
    // The labels of the date and time dialog ("Date", "Time").
    void SetDateText(const std::wstring& text) { Change(m_texts.date, text); }
    std::wstring GetDateText() const { return m_texts.date; }
    void SetTimeText(const std::wstring& text) { Change(m_texts.time, text); }
    std::wstring GetTimeText() const { return m_texts.time; }
    // What an undefined item shows, and what a grid without sections shows; both empty at the start.
    void SetUndefinedText(const std::wstring& text) { Change(m_texts.undefined, text); }
    std::wstring GetUndefinedText() const { return m_texts.undefined; }
    void SetEmptyListText(const std::wstring& text) { Change(m_texts.emptyList, text); }
    std::wstring GetEmptyListText() const { return m_texts.emptyList; }

    // Colours, taken from the system when the grid is constructed.
    void SetTextColor(COLORREF color) { Change(m_colors.text, color); }
    COLORREF GetTextColor() const { return m_colors.text; }
    void SetTitleColor(COLORREF color) { Change(m_colors.title, color); }
    COLORREF GetTitleColor() const { return m_colors.title; }
    void SetBackColor(COLORREF color) { Change(m_colors.back, color); }
    COLORREF GetBackColor() const { return m_colors.back; }
    void SetShadeColor(COLORREF color) { Change(m_colors.shade, color); }
    COLORREF GetShadeColor() const { return m_colors.shade; }
    void SetFocusColor(COLORREF color) { Change(m_colors.focus, color); }
    COLORREF GetFocusColor() const { return m_colors.focus; }
    void SetFocusTextColor(COLORREF color) { Change(m_colors.focusText, color); }
    COLORREF GetFocusTextColor() const { return m_colors.focusText; }
    void SetEditableColor(COLORREF color) { Change(m_colors.editable, color); }
    COLORREF GetEditableColor() const { return m_colors.editable; }
    void SetNonEditableColor(COLORREF color) { Change(m_colors.nonEditable, color); }
    COLORREF GetNonEditableColor() const { return m_colors.nonEditable; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnMove(WPARAM zero, LPARAM place);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnChoiceMade(WPARAM index, LPARAM zero);
    afx_msg LRESULT OnEditDone(WPARAM text, LPARAM zero);
    afx_msg LRESULT OnDateChosen(WPARAM alsoZero, LPARAM zero);
    DECLARE_MESSAGE_MAP()

    const CGridContents& GetContents() const { return m_contents; }

private:
    static constexpr int TEXT_MARGIN = 4;
    static constexpr UINT SCROLL_BAR_ID = 1000;
    static constexpr UINT IN_PLACE_EDIT_ID = 1000;

    // What the grid holds the mouse for.
    enum EMouseUse { MU_NONE, MU_EDIT_BUTTON, MU_CUSTOM_ITEM, MU_DIVIDER };

    // A header row or an item's row; the other id is NO_ID.
    struct CRow {
        UINT section = NO_ID;
        UINT item = NO_ID;
        bool operator==(const CRow&) const = default;
    };

    struct CColors {
        COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
        COLORREF title = ::GetSysColor(COLOR_WINDOWTEXT);
        COLORREF back = ::GetSysColor(COLOR_WINDOW);
        COLORREF shade = ::GetSysColor(COLOR_BTNFACE);
        COLORREF focus = ::GetSysColor(COLOR_HIGHLIGHT);
        COLORREF focusText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
        COLORREF editable = ::GetSysColor(COLOR_WINDOWTEXT);
        COLORREF nonEditable = ::GetSysColor(COLOR_GRAYTEXT);
    };
    struct CPaintTools;

    // Has the grid bring it up to date before it answers anything.
    class CGridScrollBar : public CScrollBar {
    public:
        explicit CGridScrollBar(CPropertyGrid& grid) : m_grid(grid) {}

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    private:
        CPropertyGrid& m_grid;
    };

    // Life: PropertyGrid.cpp.
    void Initialize();
    void CreateFonts();
    void TakeParentText(int controlId, const wchar_t* otherwise, std::wstring& text) const;
    void Repaint();
    template <class T>
    void Change(T& setting, const T& value) {
        setting = value;
        Repaint();
    }

    bool IsCategorized() const { return m_displayMode == DM_CATEGORIZED; }
    void ReportChange(UINT item);

    // Values: PropertyGridValues.cpp.
    UINT AddItemWithOptions(UINT section, EItemType kind, const std::wstring& name, const void* value,
                            std::vector<std::wstring> options, bool editable, bool undefined);
    UINT InsertCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable);
    void LayOutNewRow();
    UINT AddItemWithOption(UINT section, EItemType kind, const std::wstring& name, const void* value,
                           const std::wstring& option, bool editable, bool undefined);
    template <class T>
    bool ReadValue(UINT item, T& value) const;
    template <class T>
    bool WriteValue(UINT item, T value);
    CGridItem* LeaveEditorOf(UINT item);
    bool SetFocusedRow(const CRow& row);

    // Layout: PropertyGridLayout.cpp.
    void Relayout();
    void RelayoutForMoreRows();
    void SettleLayout();
    int GetTotalHeight() const;
    void ShowScrolling(const CRect& client, int totalHeight, int position);
    void HideScrolling();
    void PlaceScrollBar();
    CRect GetScrollBarRect() const;
    int GetScrollPosition() const;
    bool HasScrollBar() const { return m_scrollBar.GetSafeHwnd() != nullptr; }

    // Painting: PropertyGridPaint.cpp.
    void PaintWindow(CDC& target);
    void Paint(CDC& target, CMemoryCanvas& canvas);
    void PaintBelowRows(CPaintTools& tools);
    void PaintEmptyList(CPaintTools& tools);
    void PaintSections(CPaintTools& tools);
    void PaintSorted(CPaintTools& tools);
    void PaintHeader(CPaintTools& tools, const CRect& row, CGridSection& section);
    CGridPlace PlaceRows(const CPaintTools& tools, int top, std::size_t rows) const;
    void PaintColumns(CPaintTools& tools, const CGridPlace& place);
    void PaintRows(CPaintTools& tools, const CGridPlace& place, const std::vector<CGridItem*>& items);
    void PaintItem(CPaintTools& tools, const CRect& row, CGridItem& item);
    int PaintEditButton(CPaintTools& tools, const CRect& row, CGridItem& item);
    void PaintName(CPaintTools& tools, const CRect& row, const CGridItem& item);
    void PaintValue(CPaintTools& tools, const CRect& valueRect, const CGridItem& item);
    CRect PaintSwatch(CPaintTools& tools, const CRect& cell, COLORREF color);

    // The mouse: PropertyGridMouse.cpp.
    bool Press(CPoint point);
    bool PressCustomItem(CPoint point);
    bool PressSection(CPoint point);
    bool PressItem(CPoint point);
    void MoveMouse(CPoint point);
    void MoveDivider(int x);
    void Release(CPoint point);
    void DoubleClick();
    void HoldMouse(EMouseUse use);
    EMouseUse LetMouseGo();
    bool IsOnDivider(CPoint point) const;
    bool IsOnEditButton(CPoint point) const;
    bool CanFocus(const CGridItem& item) const { return item.editable || m_focusNonEditable; }
    CGridItem* FindItemAt(CPoint point);
    CGridItem* FindFocusedItem() { return m_contents.FindItem(m_focusedItem); }
    void TellCustomItem(void (ICustomItem::*event)(CRect, CPoint), CPoint point);

    // The keyboard: PropertyGridKeyboard.cpp.
    bool PressKey(UINT key);
    bool TypeCharacter(UINT character);
    bool CollapseFocusedSection(bool collapse);
    void CollapseAllSections(bool collapse);
    std::vector<CRow> ListFocusRows() const;
    void FocusNextRow();
    void FocusPreviousRow();
    void FocusRow(const CRow& row);
    void MoveFocus(const CRow& row);
    void RevealFocusedRow();

    // Scrolling: PropertyGridScroll.cpp.
    bool ScrollByBar(UINT code, UINT position, const CScrollBar* bar);
    void ScrollByWheel(int delta);
    bool Scroll(UINT code, int position = 0);
    int FindThumbPosition(UINT position);

    // Editors and their results: PropertyGridEdit.cpp.
    void OpenEditor(CPoint point);
    void OpenInPlaceEdit(const CRect& rect, const std::wstring& text);
    void OpenInPlaceOrModal(const CGridItem& item, CPoint point);
    void DropDown(const CGridItem& item);
    void OpenList(const CGridItem& item, const CRect& under);
    void OpenCalendar(const CGridItem& item, CRect under);
    void TakeChoice(int index);
    void TakeText(const std::wstring& text);
    bool GiveText(const CGridItem& item, const std::wstring& text, bool isUntouched);
    void TakeDate();
    void CloseEditor();
    bool LeaveEditor();
    bool TakeFocus();

    // Dialogs: PropertyGridModalEdit.cpp.
    void EditInDialog(UINT id);
    template <class T, class TAsk>
    void EditCopy(const CGridItem& item, TAsk ask);
    void PressCustomButton(const CGridItem& item);

    CGridContents m_contents;
    UINT m_focusedSection = NO_ID;
    UINT m_focusedItem = NO_ID;
    UINT m_displayMode = DM_CATEGORIZED;
    bool m_shadeHeaders = true;
    bool m_drawLines = true;
    bool m_drawDivider = true;
    bool m_focusNonEditable = true;
    bool m_boldModified = false;
    bool m_boldEditable = false;
    int m_gutter = 0;
    int m_rowHeight = 0;
    CFont m_font;
    CFont m_boldFont;
    CGridTexts m_texts;
    CColors m_colors;
    CGridScrollBar m_scrollBar{*this};
    bool m_scrollBarShown = false;
    std::unique_ptr<CMemoryCanvas> m_canvas;  // what the last paint drew on
    bool m_customItemDrew = false;            // during the last paint
    bool m_laidOut = false;      // neither the grid nor its bar has heard anything since the last layout
    bool m_rowsPending = false;  // rows were added since then
    CRect m_editButtonRect;
    bool m_buttonPressed = false;  // paints the edit button pushed
    bool m_creating = false;       // from PreCreateWindow to PreSubclassWindow, or to a failed creation
    EMouseUse m_mouseUse = MU_NONE;
    int m_lastDividerX = 0;        // of the mouse, while it moves the divider
    bool m_editOnRelease = false;  // the left button went down on a value whose editor opens on release
    // The press that focused the EM_INPLACE_BUTTON item was left of its button. Once true, a release on the
    // button means the button; until then every release opens the text edit.
    bool m_textPartPressed = true;
    std::unique_ptr<CWnd> m_editor;  // the open one; or what is left of one that closed by itself
    bool m_editUntouched = false;    // the edit that just ended, while its text is taken
};
