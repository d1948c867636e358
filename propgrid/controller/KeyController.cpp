#include "propgrid/controller/KeyController.h"

#include "propgrid/controller/Focus.h"
#include "propgrid/layout/FocusOrder.h"

namespace tavrin::propgrid {

bool CKeyController::IsGridKey(unsigned key) {
    return key >= KEY_LEFT && key <= KEY_DOWN;
}

bool CKeyController::ChangesSections(wchar_t character) const {
    const bool isForFocused = character == L'+' || character == L'-';
    return character == L'*' || character == L'/' ||
           (isForFocused && m_model.FindSection(m_model.GetFocus().section) != nullptr);
}

Actions CKeyController::PressKey(unsigned key, const ScrollState& scroll) {
    switch (key) {
        case KEY_LEFT:
            return FindFocusedSection(false) != nullptr ? CollapseFocused(true)
                                                        : FocusRow(FindPreviousRow(m_model), scroll);
        case KEY_UP:
            return FocusRow(FindPreviousRow(m_model), scroll);
        case KEY_RIGHT:
            return FindFocusedSection(true) != nullptr ? CollapseFocused(false)
                                                       : FocusRow(FindNextRow(m_model), scroll);
        case KEY_DOWN:
            return FocusRow(FindNextRow(m_model), scroll);
        default:
            return {action::DefaultHandling{}};
    }
}

Actions CKeyController::TypeCharacter(wchar_t character) {
    switch (character) {
        case L'*':
            return CollapseAll(false);
        case L'/':
            return CollapseAll(true);
        case L'+':
            return CollapseFocused(false);
        case L'-':
            return CollapseFocused(true);
        default:
            return {action::DefaultHandling{}};
    }
}

// Scrolls when the row is not visible in full. The thumb deliberately goes to the row's position in the
// window, not to its position in the list: in a list that is scrolled far the row may stay out of sight.
Actions CKeyController::FocusRow(const RowId& row, const ScrollState& scroll) {
    if (row == RowId()) {
        return {};
    }
    MoveFocus(m_model, m_layout, row);
    Actions actions = {action::Repaint{}};
    const GridView& view = m_layout.GetView();
    const Rect rect = m_layout.GetFocusedRow();
    const Rect visible = Intersect(rect, {0, 0, view.client.width, view.client.height});
    if (rect.IsEmpty() || visible.GetHeight() == view.rowHeight || view.scrollBarWidth == 0) {
        return actions;
    }
    if (const std::optional<int> target =
            FindScrollTarget(scroll, SC_THUMB_POSITION, rect.top, view.rowHeight, view.client.height)) {
        actions.push_back(action::ScrollTo{*target});
    }
    return actions;
}

GridSection* CKeyController::FindFocusedSection(bool collapsed) {
    GridSection* const section = m_model.FindSection(m_model.GetFocus().section);
    return section != nullptr && section->collapsed == collapsed ? section : nullptr;
}

Actions CKeyController::CollapseAll(bool collapse) {
    if (m_model.GetSections().empty()) {
        return {};
    }
    for (GridSection* const section : m_model.GetSections()) {
        m_model.SetCollapsed(*section, collapse);
    }
    return {action::Relayout{}};
}

// Deliberately also a layout when the section is so already: a double click on its header does not update the
// layout.
Actions CKeyController::CollapseFocused(bool collapse) {
    GridSection* const section = m_model.FindSection(m_model.GetFocus().section);
    if (section == nullptr) {
        return {};
    }
    m_model.SetCollapsed(*section, collapse);
    return {action::Relayout{}};
}

}  // namespace tavrin::propgrid
