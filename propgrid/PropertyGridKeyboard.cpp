// The property grid and the keyboard: moving the focus from row to row, collapsing and expanding.
#include <algorithm>

#include "propgrid/PropertyGrid.h"

namespace {

bool IsArrowKey(UINT key) {
    return key >= VK_LEFT && key <= VK_DOWN;
}

}  // namespace

// False for a key that is none of the grid's. An editor has the keyboard, but keys may have been on their way
// to the grid when it opened: it ends before the focus moves.
bool CPropertyGrid::PressKey(UINT key) {
    if (IsArrowKey(key) && !LeaveEditor()) {
        return true;
    }
    switch (key) {
        case VK_DOWN:
            FocusNextRow();
            return true;
        case VK_UP:
            FocusPreviousRow();
            return true;
        case VK_LEFT:
            if (!CollapseFocusedSection(true)) {
                FocusPreviousRow();
            }
            return true;
        case VK_RIGHT:
            if (!CollapseFocusedSection(false)) {
                FocusNextRow();
            }
            return true;
        default:
            return false;
    }
}

// False for a character that is none of the grid's.
bool CPropertyGrid::TypeCharacter(UINT character) {
    switch (character) {
        case L'*':
            CollapseAllSections(false);
            return true;
        case L'/':
            CollapseAllSections(true);
            return true;
        // Unlike the arrow keys these lay the rows out anew even if the section is so already.
        case L'+':
            SetSectionCollapsed(m_focusedSection, false);
            return true;
        case L'-':
            SetSectionCollapsed(m_focusedSection, true);
            return true;
        default:
            return false;
    }
}

// False when no section is focused or it is collapsed, or expanded, already.
bool CPropertyGrid::CollapseFocusedSection(bool collapse) {
    const CGridSection* const section = m_contents.FindSection(m_focusedSection);
    return section != nullptr && section->collapsed != collapse &&
           SetSectionCollapsed(m_focusedSection, collapse);
}

void CPropertyGrid::CollapseAllSections(bool collapse) {
    LeaveEditor();
    for (CGridSection* const section : m_contents.GetSections()) {
        m_contents.SetCollapsed(*section, collapse);
    }
    if (!m_contents.GetSections().empty()) {
        Relayout();
    }
}

// The rows that the focus moves along, in order, and among them the focused one whether it may have the
// focus or not. In the flat displays that is deliberately the order of the sections, sorted or not.
std::vector<CPropertyGrid::CRow> CPropertyGrid::ListFocusRows() const {
    std::vector<CRow> rows;
    for (const CGridSection* const section : m_contents.GetSections()) {
        if (IsCategorized()) {
            rows.push_back({.section = section->id});
        }
        if (IsCategorized() && section->collapsed) {
            continue;
        }
        for (const CGridItem* const item : m_contents.Walk(*section)) {
            if (CanFocus(*item) || item->id == m_focusedItem) {
                rows.push_back({.item = item->id});
            }
        }
    }
    return rows;
}

// Behind the last row comes the first; there the focus begins, too.
void CPropertyGrid::FocusNextRow() {
    const std::vector<CRow> rows = ListFocusRows();
    if (rows.empty()) {
        return;
    }
    const CRow focused{m_focusedSection, m_focusedItem};
    const auto found = std::find(rows.begin(), rows.end(), focused);
    const bool isLast = found == rows.end() || found + 1 == rows.end();
    FocusRow(isLast ? rows.front() : found[1]);
}

// Before the first row comes the last. Without a focused row there is deliberately none before it.
void CPropertyGrid::FocusPreviousRow() {
    const std::vector<CRow> rows = ListFocusRows();
    const CRow focused{m_focusedSection, m_focusedItem};
    const auto found = std::find(rows.begin(), rows.end(), focused);
    if (found != rows.end()) {
        FocusRow(found == rows.begin() ? rows.back() : found[-1]);
    }
}

void CPropertyGrid::FocusRow(const CRow& row) {
    MoveFocus(row);
    Repaint();
    RevealFocusedRow();
}

// The edit button is that of the focused row: until the next paint there is none.
void CPropertyGrid::MoveFocus(const CRow& row) {
    m_focusedSection = row.section;
    m_focusedItem = row.item;
    m_editButtonRect.SetRectEmpty();
}

// Scrolls when the row does not show in full. The thumb deliberately goes to the row's place in the window,
// not to its place in the list: in a list that is scrolled far the row may stay out of sight.
void CPropertyGrid::RevealFocusedRow() {
    UpdateWindow();
    CRect rect;
    if (const CGridSection* const section = m_contents.FindSection(m_focusedSection)) {
        rect = section->headerRect;
    } else if (const CGridItem* const item = FindFocusedItem()) {
        rect = item->GetNameRect();
    }
    CRect client;
    GetClientRect(&client);
    if (!rect.IsRectEmpty() && (rect & client).Height() != m_rowHeight && m_scrollBarShown) {
        Scroll(SB_THUMBPOSITION, rect.top);
    }
}
