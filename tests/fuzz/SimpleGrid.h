// A second property grid to compare the real one with: the whole of its behaviour in lists that are searched
// from the start each time. Nothing is kept that can be computed; it shares no rule with the real one.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/fuzz/GridWindow.h"

namespace tests {

struct SimpleItem {
    Id id = kNoId;
    EItemType kind = IT_STRING;
    std::wstring name;
    bool editable = true;
    bool undefined = false;
    SlotValue value;
    SlotValue saved;
    bool savedUndefined = false;
    int choices = 0;
    bool drawn = false;  // by the last paint that came by
    Rect nameRect;
    Rect valueRect;
};

struct SimpleSection {
    Id id = kNoId;
    std::wstring name;
    bool collapsed = false;
    std::vector<SimpleItem> items;
    Rect glyph;
    Rect header;
};

// A row of the display; the other id is none.
struct SimpleRow {
    Id section = kNoId;
    Id item = kNoId;
    bool operator==(const SimpleRow&) const = default;
};

class CSimpleGrid {
public:
    CSimpleGrid(Size client, int rowHeight);

    // The client's calls.
    void AddSection(const std::wstring& name, bool collapsed, Id before);
    void AddItem(Id section, EItemType kind, const std::wstring& name, const SlotValue& value, bool editable,
                 bool undefined);
    void Reset();
    void SetDisplayMode(std::uint32_t mode);
    void SetGutter(int x);
    void SetFocusNonEditable(bool canFocus);
    void SetCollapsed(Id id, bool collapsed);
    void SetEditable(Id id, bool editable);
    void SetValue(Id id, const SlotValue& value);
    void SetUndefined(Id id, bool undefined);
    void SetChoices(Id id, int count);
    void AcceptValues();
    void FocusItem(Id id);
    void FocusSection(Id id);
    void ChangeCustom(unsigned index, const CustomState& state);

    // The user's and the system's events.
    void Resize(Size client);
    void Press(Point point);
    void Release(Point point, unsigned answer);
    void Move(Point point);
    void DoubleClick(unsigned answer);
    void LoseCapture();
    void PressKey(unsigned key);
    void TypeCharacter(wchar_t character);
    void TurnWheel(int delta);
    void Scroll(unsigned code, int thumb);
    void TypeText(const std::wstring& text);
    void EndText(bool escape);
    void Choose(int index);
    void ChooseDate(double days);
    void CloseEditor();
    void Paint();

    // What there is.
    GridWindow window;
    std::vector<SimpleSection> sections;  // as they are displayed
    SimpleRow focus;
    std::uint32_t displayMode = 0;
    int gutter = 0;
    bool focusNonEditable = true;
    bool buttonPressed = false;
    Rect editButton;
    bool asksForPaint = false;
    Reaction reaction;

    const SimpleItem* FindItem(Id id) const;
    SimpleSection* FindSection(Id id);
    const SimpleSection* FindSectionOf(Id item) const;
    SimpleItem* FindItem(Id id) { return const_cast<SimpleItem*>(std::as_const(*this).FindItem(id)); }
    int EditModeOf(const SimpleItem& item) const;
    static bool IsModified(const SimpleItem& item);
    std::wstring EditTextOf(const SimpleItem& item) const;
    // All rows that there are, in the order that the focus moves along.
    std::vector<SimpleRow> ListRows() const;
    int TotalHeight() const { return static_cast<int>(ListRows().size()) * m_rowHeight; }

    // What lies under a point.
    bool IsOnButton(Point point) const;
    bool IsOnDivider(Point point) const;
    static bool IsOnGlyph(const SimpleSection& section, Point point);
    const SimpleSection* FindSectionAt(Point point) const;  // by its glyph or its header
    const SimpleItem* FindItemAt(Point point) const;
    static bool IsOnValue(const SimpleItem& item, Point point);

private:
    enum ECapture { CP_NONE, CP_BUTTON, CP_CUSTOM, CP_DIVIDER };

    bool IsCategorized() const { return displayMode == 0; }
    bool CanFocus(const SimpleItem& item) const { return item.editable || focusNonEditable; }
    const SimpleItem* FindFocusedItem() const { return FindItem(focus.item); }
    void Repaint() { asksForPaint = true; }
    void Relayout();
    void MoveFocus(const SimpleRow& row);
    void TakeSavedCopy(Id id);
    void React();
    void Record(const WindowCall& call) { window.calls.push_back(call); }

    void PaintItem(SimpleItem& item, int y, int width);
    bool IsInSight(const Rect& row) const;

    void PressRow(Point point);
    void PressItem(const SimpleItem& item, Point point);
    void Capture(ECapture use);
    ECapture EndCapture();
    void NotifyCustomItem(EWindowCall event, Point point);
    void OpenEditor(Point point, unsigned answer);
    void OpenText(const SimpleItem& item, const Rect& rect);
    void DropDown(const SimpleItem& item);
    void EditInDialog(Id id, unsigned answer);
    void PressCustomButton(Id id);
    void EndEditor();
    void TakeText(const std::wstring& text, bool typed);
    void GiveCustomText(Id id, const std::wstring& text);
    void ReportCustomChange(Id id, unsigned custom);
    void Notify(Id id);

    bool CanFocus(const SimpleRow& row) const;
    SimpleRow FindNextRow() const;
    SimpleRow FindPreviousRow() const;
    void FocusRow(const SimpleRow& row);
    void CollapseAll(bool collapse);
    void ScrollThumb(int thumb);

    int m_rowHeight;
    Id m_nextSection = 0;
    Id m_nextItem = 0;
    ECapture m_use = CP_NONE;
    bool m_editOnRelease = false;
    bool m_textPart = true;
    int m_lastX = 0;
};

}  // namespace tests
