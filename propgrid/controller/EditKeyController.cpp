#include "propgrid/controller/EditKeyController.h"

#include <algorithm>

#include "propgrid/controller/Focus.h"
#include "propgrid/controller/KeyController.h"
#include "propgrid/layout/FocusOrder.h"

namespace tavrin::propgrid {

namespace {

constexpr wchar_t kSpace = L' ';

// Control characters edit nothing. Half of a surrogate pair would be a text of its own.
bool IsPrintable(wchar_t character) {
    const auto code = static_cast<std::uint32_t>(character);
    return code > 0x20 && (code < 0x7F || code > 0x9F) && (code < 0xD800 || code > 0xDFFF);
}

}  // namespace

bool CEditKeyController::TakesKey(unsigned key) const {
    return IsOn() && ((key >= KEY_PAGE_UP && key <= KEY_HOME) || key == KEY_F2 || key == KEY_F4);
}

Actions CEditKeyController::PressKey(unsigned key) {
    switch (key) {
        case KEY_HOME:
            return FocusRow(FindFirstRow(m_model));
        case KEY_END:
            return FocusRow(FindLastRow(m_model));
        case KEY_PAGE_UP:
            return FocusRow(FindRowBack(m_model, CountRowsOfPage()));
        case KEY_PAGE_DOWN:
            return FocusRow(FindRowAhead(m_model, CountRowsOfPage()));
        default:
            return m_editor.Open();
    }
}

bool CEditKeyController::TakesAltKey(unsigned key) const {
    return IsOn() && (key == KEY_DOWN || key == KEY_RETURN);
}

Actions CEditKeyController::PressAltKey(unsigned key) const {
    return key == KEY_RETURN ? m_editor.PressButton() : m_editor.Open();
}

bool CEditKeyController::TakesCharacter(wchar_t character) const {
    if (!IsOn()) {
        return false;
    }
    if (character == kSpace) {
        return m_editor.IsBoolean();
    }
    return IsPrintable(character) && character != L'*' && character != L'/' && m_editor.TakesText();
}

Actions CEditKeyController::TypeCharacter(wchar_t character) {
    return character == kSpace ? m_editor.InvertBoolean() : m_editor.OpenWith(character);
}

Actions CEditKeyController::FocusRow(const RowId& row) {
    if (row == RowId()) {
        return {};
    }
    MoveFocus(m_model, m_layout, row);
    Actions actions = {action::Repaint{}};
    if (const std::optional<action::ScrollTo> reveal = RevealFocusedRow(m_layout)) {
        actions.emplace_back(*reveal);
    }
    return actions;
}

int CEditKeyController::CountRowsOfPage() const {
    const GridView& view = m_layout.GetView();
    return std::max(view.client.height / std::max(view.rowHeight, 1), 1);
}

}  // namespace tavrin::propgrid
