#include "propgrid/controller/MouseController.h"

#include <algorithm>
#include <utility>

#include "propgrid/controller/EditorOpening.h"
#include "propgrid/controller/Focus.h"
#include "propgrid/model/ValueEdit.h"

namespace tavrin::propgrid {

Actions CMouseController::Press(Point point) {
    const Hit hit = m_layout.HitTest(point);
    if (hit.onEditButton) {
        m_buttonPressed = true;
        return Capture(CAP_EDIT_BUTTON);
    }
    const GridItem* const item = FindFocusedItem();
    if (item != nullptr && item->kind == IT_CUSTOM && item->GetEditMode() == EM_CUSTOM) {
        return {action::AskCustomItem{item->id, m_layout.GetValueRect(*item), point}};
    }
    return PressRow(hit, point);
}

Actions CMouseController::AnswerPress(bool taken, Point point) {
    return taken ? Capture(CAP_CUSTOM_ITEM) : PressRow(m_layout.HitTest(point), point);
}

Actions CMouseController::PressRow(const Hit& hit, Point point) {
    if (hit.onDivider) {
        m_lastDividerX = point.x;
        Actions actions = Capture(CAP_DIVIDER);
        actions.push_back(action::ShowCursor{CU_SIZE});
        return actions;
    }
    MoveFocus(m_model, m_layout, RowId());
    Actions actions = {action::Repaint{}};
    switch (hit.part) {
        case HP_NOTHING:
            actions.push_back(action::DefaultHandling{});
            break;
        case HP_GLYPH:
        case HP_HEADER:
            PressSection(hit, actions);
            break;
        case HP_NAME:
        case HP_VALUE:
            PressItem(hit, point);
            break;
    }
    return actions;
}

void CMouseController::PressSection(const Hit& hit, Actions& actions) {
    MoveFocus(m_model, m_layout, {.section = hit.section});
    if (hit.part == HP_GLYPH) {
        GridSection& section = *m_model.FindSection(hit.section);
        m_model.SetCollapsed(section, !section.collapsed);
        actions.push_back(action::Relayout{});
    }
}

// A click on the name only focuses.
void CMouseController::PressItem(const Hit& hit, Point point) {
    MoveFocus(m_model, m_layout, {.item = hit.item});
    if (hit.part != HP_VALUE) {
        return;
    }
    const GridItem& item = *m_model.FindItem(hit.item);
    const int mode = item.GetEditMode();
    m_editOnRelease = mode == EM_INPLACE || mode == EM_DROPDOWN || mode == EM_INPLACE_BUTTON;
    m_textPartPressed = mode == EM_INPLACE_BUTTON &&
                        point.x < m_layout.GetValueRect(item).right - m_layout.GetView().rowHeight;
}

Actions CMouseController::Capture(ECapture mode) {
    m_capture = mode;
    return {action::BeginCapture{}, action::Repaint{}};
}

// Returns what the mouse was captured for.
CMouseController::ECapture CMouseController::EndCapture(Actions& actions) {
    const ECapture mode = std::exchange(m_capture, CAP_NONE);
    if (mode != CAP_NONE) {
        m_buttonPressed = false;
        actions.insert(actions.end(), {action::EndCapture{}, action::Repaint{}});
    }
    return mode;
}

Actions CMouseController::LoseCapture() {
    Actions actions;
    EndCapture(actions);
    return actions;
}

Actions CMouseController::Move(Point point, bool editing) {
    Actions actions;
    switch (m_capture) {
        case CAP_CUSTOM_ITEM:
            NotifyCustomItem(CE_MOVE, point, actions);
            break;
        case CAP_EDIT_BUTTON:
            if (std::exchange(m_buttonPressed, m_layout.HitTest(point).onEditButton) != m_buttonPressed) {
                actions.push_back(action::Repaint{});
            }
            break;
        case CAP_DIVIDER:
            MoveDivider(point.x);
            actions.insert(actions.end(), {action::ShowCursor{CU_SIZE}, action::Repaint{}});
            break;
        case CAP_NONE:
            if (!editing) {
                actions.push_back(action::ShowCursor{m_layout.IsOnDivider(point) ? CU_SIZE : CU_ARROW});
            }
            break;
    }
    return actions;
}

// Follows the mouse's movement, not its position: what a limit cut off is deliberately not made up for.
void CMouseController::MoveDivider(int x) {
    const int width = m_layout.GetView().client.width;
    int& gutter = m_model.settings.gutter;
    gutter = std::min(std::max(gutter + x - m_lastDividerX, width / 5), width * 4 / 5);
    m_lastDividerX = x;
}

Actions CMouseController::Release(Point point) {
    Actions actions;
    const ECapture capture = EndCapture(actions);
    const bool editOnRelease = std::exchange(m_editOnRelease, false);
    if (capture == CAP_CUSTOM_ITEM) {
        NotifyCustomItem(CE_UP, point, actions);
        return actions;
    }
    if (capture == CAP_DIVIDER) {
        actions.push_back(action::ShowCursor{CU_ARROW});
    }
    if (capture != CAP_EDIT_BUTTON && !editOnRelease) {
        return actions;
    }
    const GridItem* const item = FindFocusedItem();
    const bool onValue = editOnRelease && item != nullptr && m_layout.GetValueRect(*item).Contains(point);
    if (onValue || m_layout.HitTest(point).onEditButton) {
        OpenEditor(point, actions);
    }
    return actions;
}

// Opens the focused item's editor; `point` is where the mouse was released.
void CMouseController::OpenEditor(Point point, Actions& actions) {
    const GridItem* const item = FindFocusedItem();
    if (item == nullptr || !item->editable) {
        return;
    }
    switch (item->GetEditMode()) {
        case EM_INPLACE:
            actions.push_back(PlaceTextEdit(*item, GetEditCell(), m_layout.GetView().rowHeight));
            break;
        case EM_DROPDOWN:
            actions.push_back(action::DropDown{item->id, GetEditCell()});
            break;
        case EM_MODAL:
            actions.push_back(action::EditInDialog{item->id});
            break;
        case EM_INPLACE_BUTTON:
            actions.push_back(OpenTextOrDialog(*item, point));
            break;
        case EM_CUSTOM:
            NotifyCustomItem(CE_UP, point, actions);
            break;
        default:
            break;
    }
}

// The button works once the item has been focused: the release that follows the focusing press on the button
// deliberately opens the edit.
Action CMouseController::OpenTextOrDialog(const GridItem& item, Point point) {
    const Rect cell = GetEditCell();
    const int rowHeight = m_layout.GetView().rowHeight;
    const bool onText = point.x < cell.right - rowHeight;
    if (std::exchange(m_textPartPressed, true) && !onText) {
        return action::EditInDialog{item.id};
    }
    return PlaceTextEdit(item, cell, rowHeight);
}

// From the divider to the right edge of the focused item's row.
Rect CMouseController::GetEditCell() const {
    const Rect& button = m_layout.GetEditButton();
    return {m_model.settings.gutter, button.top, button.right, button.bottom};
}

Actions CMouseController::DoubleClick() {
    GridItem* const item = m_model.FindItem(m_model.GetFocus().item);
    if (item == nullptr) {
        // The scroll range deliberately waits for the next layout.
        if (GridSection* const section = m_model.FindSection(m_model.GetFocus().section)) {
            m_model.SetCollapsed(*section, !section->collapsed);
            return {action::Repaint{}};
        }
        return {};
    }
    if (AdvanceValue(*item)) {
        return {action::Notify{item->id}, action::Repaint{}};
    }
    return item->editable && item->GetEditMode() == EM_MODAL ? Actions{action::EditInDialog{item->id}}
                                                             : Actions();
}

void CMouseController::NotifyCustomItem(ECustomEvent event, Point point, Actions& actions) const {
    const GridItem* const item = FindFocusedItem();
    if (item != nullptr && item->kind == IT_CUSTOM) {
        actions.push_back(action::NotifyCustomItem{item->id, event, m_layout.GetValueRect(*item), point});
    }
}

}  // namespace tavrin::propgrid
