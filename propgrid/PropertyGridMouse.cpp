// The property grid and the mouse: focusing rows, the edit button, the divider, double clicks.
//
// Hit tests go by the rectangles that the last paint recorded, so whatever is still to be painted is painted
// first: two messages of the mouse may come without a paint between them.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "propgrid/PropertyGrid.h"

namespace {

// How far from the divider the mouse still holds it, in pixels.
constexpr int dividerReach = 3;

void ShowCursor(LPCTSTR name) {
    ::SetCursor(::LoadCursor(nullptr, name));
}

bool IsLeftButtonDown() {
    return ::GetKeyState(VK_LBUTTON) < 0;
}

// Posted before a step of a press and taken back after it: a message loop that ran meanwhile has removed it.
constexpr UINT kPressMark = WM_USER + 490;

// Finds out whether a step of a press outlasted the press: the step may have run a message loop, such as a
// message box's, in which the release of the button went to another window. Where the messages of a mouse
// come without a mouse the button is never down, which says nothing.
class CPressWatch {
public:
    explicit CPressWatch(HWND window)
        : m_window(window),
          m_wasDown(IsLeftButtonDown()),
          m_isMarked(::PostMessage(window, kPressMark, 0, 0) != FALSE) {}
    ~CPressWatch() { RemoveMark(); }
    CPressWatch(const CPressWatch&) = delete;
    CPressWatch& operator=(const CPressWatch&) = delete;

    bool HasLoopRun() { return m_isMarked && !RemoveMark(); }
    bool WasReleased() const { return m_wasDown && !IsLeftButtonDown(); }

private:
    // False when the mark is gone.
    bool RemoveMark() {
        MSG mark;
        return std::exchange(m_isMarked, false) &&
               ::PeekMessage(&mark, m_window, kPressMark, kPressMark, PM_REMOVE) != FALSE;
    }

    HWND m_window;
    bool m_wasDown;
    bool m_isMarked;
};

}  // namespace

// False when nothing is under the point and the default handling is to follow.
bool CPropertyGrid::Press(CPoint point) {
    m_editOnRelease = false;
    CPressWatch watch(m_hWnd);
    if (!TakeFocus() || watch.HasLoopRun() || watch.WasReleased()) {
        return true;
    }
    UpdateWindow();
    if (IsOnEditButton(point)) {
        m_buttonPressed = true;
        HoldMouse(MU_EDIT_BUTTON);
        return true;
    }
    if (PressCustomItem(point)) {
        if (!watch.WasReleased()) {
            HoldMouse(MU_CUSTOM_ITEM);
        }
        return true;
    }
    if (IsOnDivider(point)) {
        ShowCursor(IDC_SIZEWE);
        m_lastDividerX = point.x;
        HoldMouse(MU_DIVIDER);
        return true;
    }
    MoveFocus({});
    Repaint();
    return (IsCategorized() && PressSection(point)) || PressItem(point);
}

bool CPropertyGrid::PressCustomItem(CPoint point) {
    const CGridItem* const item = FindFocusedItem();
    return item != nullptr && item->kind == IT_CUSTOM && item->GetEditMode() == EM_CUSTOM &&
           std::get<ICustomItem*>(item->value)->OnLButtonDown(item->GetValueRect(), point);
}

bool CPropertyGrid::PressSection(CPoint point) {
    for (CGridSection* const section : m_contents.GetSections()) {
        const bool onGlyph = section->glyphRect.PtInRect(point);
        if (!onGlyph && !section->headerRect.PtInRect(point)) {
            continue;
        }
        m_focusedSection = section->id;
        if (onGlyph) {
            m_contents.SetCollapsed(*section, !section->collapsed);
            Relayout();
        }
        return true;
    }
    return false;
}

bool CPropertyGrid::PressItem(CPoint point) {
    const CGridItem* const item = FindItemAt(point);
    if (item == nullptr) {
        return false;
    }
    m_focusedItem = item->id;
    // A click on the name only focuses.
    if (!item->GetValueRect().PtInRect(point)) {
        return true;
    }
    const int mode = item->GetEditMode();
    m_editOnRelease = mode == EM_INPLACE || mode == EM_DROPDOWN || mode == EM_INPLACE_BUTTON;
    m_textPartPressed = item->kind == IT_CUSTOM && mode == EM_INPLACE_BUTTON &&
                        point.x < item->GetValueRect().right - m_rowHeight;
    return true;
}

// The rectangles of a collapsed section's items are those of an earlier paint.
CGridItem* CPropertyGrid::FindItemAt(CPoint point) {
    for (const CGridSection* const section : m_contents.GetSections()) {
        if (IsCategorized() && section->collapsed) {
            continue;
        }
        for (CGridItem* const item : m_contents.Walk(*section)) {
            const bool isHit = item->GetNameRect().PtInRect(point) || item->GetValueRect().PtInRect(point);
            if (isHit && CanFocus(*item)) {
                return item;
            }
        }
    }
    return nullptr;
}

bool CPropertyGrid::IsOnDivider(CPoint point) const {
    return std::abs(point.x - m_gutter) < dividerReach;
}

// The recorded rectangle may be that of a row which has since been scrolled away, or went with its section:
// such a row has no button.
bool CPropertyGrid::IsOnEditButton(CPoint point) const {
    const CGridItem* const item = m_contents.FindItem(m_focusedItem);
    if (item == nullptr || !item->editable || item->GetValueRect().IsRectEmpty() ||
        (IsCategorized() && item->section->collapsed)) {
        return false;
    }
    return m_editButtonRect.PtInRect(point);
}

void CPropertyGrid::HoldMouse(EMouseUse use) {
    m_mouseUse = use;
    SetCapture();
    Repaint();
}

// Returns what the mouse was held for. Comes here again, with nothing left to do, from the message that the
// capture has changed; from there alone when another window takes the mouse away.
CPropertyGrid::EMouseUse CPropertyGrid::LetMouseGo() {
    const EMouseUse use = std::exchange(m_mouseUse, MU_NONE);
    if (use == MU_NONE) {
        return use;
    }
    m_buttonPressed = false;
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    Repaint();
    return use;
}

void CPropertyGrid::MoveMouse(CPoint point) {
    switch (m_mouseUse) {
        case MU_CUSTOM_ITEM:
            TellCustomItem(&ICustomItem::OnMouseMove, point);
            break;
        case MU_EDIT_BUTTON:
            Change(m_buttonPressed, IsOnEditButton(point));
            break;
        case MU_DIVIDER:
            ShowCursor(IDC_SIZEWE);
            MoveDivider(point.x);
            break;
        case MU_NONE:
            if (!IsEditing()) {
                ShowCursor(IsOnDivider(point) ? IDC_SIZEWE : IDC_ARROW);
            }
    }
}

// Follows the mouse's movement, not its place: what a limit cut off is deliberately not made up for.
void CPropertyGrid::MoveDivider(int x) {
    CRect client;
    GetClientRect(&client);
    m_gutter += x - m_lastDividerX;
    m_gutter = std::max(m_gutter, client.Width() / 5);
    m_gutter = std::min(m_gutter, client.Width() * 4 / 5);
    m_lastDividerX = x;
    Repaint();
}

void CPropertyGrid::Release(CPoint point) {
    const EMouseUse use = LetMouseGo();
    const bool editOnRelease = std::exchange(m_editOnRelease, false);
    if (use == MU_CUSTOM_ITEM) {
        TellCustomItem(&ICustomItem::OnLButtonUp, point);
        return;
    }
    if (use == MU_DIVIDER) {
        ShowCursor(IDC_ARROW);
    }
    if (use != MU_EDIT_BUTTON && !editOnRelease) {
        return;
    }
    UpdateWindow();
    const CGridItem* const item = FindFocusedItem();
    const bool onValue = editOnRelease && item != nullptr && item->GetValueRect().PtInRect(point);
    if (onValue || IsOnEditButton(point)) {
        OpenEditor(point);
    }
}

// Goes by the focus alone, which the first click has set. Both values deliberately change whether the item is
// editable or not.
void CPropertyGrid::DoubleClick() {
    CGridItem* const item = FindFocusedItem();
    if (item == nullptr) {
        // The scroll range deliberately waits for the next layout.
        if (CGridSection* const section = m_contents.FindSection(m_focusedSection)) {
            m_contents.SetCollapsed(*section, !section->collapsed);
            Repaint();
        }
    } else if (item->kind == IT_BOOLEAN && !item->undefined) {
        item->value = !std::get<bool>(item->value);
        ReportChange(item->id);
    } else if (item->kind == IT_COMBO && !item->undefined && !item->options.empty()) {
        // From an index outside the choices too the next one is a choice.
        const auto count = static_cast<long long>(item->options.size());
        const long long next = (std::get<int>(item->value) + 1LL) % count;
        item->value = static_cast<int>(next < 0 ? next + count : next);
        ReportChange(item->id);
    } else if (item->GetEditMode() == EM_MODAL) {
        EditInDialog(item->id);
    }
}

void CPropertyGrid::TellCustomItem(void (ICustomItem::*event)(CRect, CPoint), CPoint point) {
    const CGridItem* const item = FindFocusedItem();
    if (item != nullptr && item->kind == IT_CUSTOM) {
        (std::get<ICustomItem*>(item->value)->*event)(item->GetValueRect(), point);
    }
}
