#include "propgrid/controller/EditorOpening.h"

#include "propgrid/controller/ScrollRule.h"
#include "propgrid/model/ValueEdit.h"

namespace tavrin::propgrid {

namespace {

bool IsTextMode(int editMode) {
    return editMode == EM_INPLACE || editMode == EM_INPLACE_BUTTON;
}

}  // namespace

action::OpenTextEdit PlaceTextEdit(const GridItem& item, const Rect& cell, int rowHeight) {
    if (item.GetEditMode() == EM_INPLACE) {
        return {.item = item.id, .rect = {cell.left + 1, cell.top + 2, cell.right, cell.bottom}};
    }
    // The button at the end of the row stays visible.
    return {.item = item.id, .rect = {cell.left + 2, cell.top + 2, cell.right - rowHeight, cell.bottom}};
}

std::optional<action::ScrollTo> RevealFocusedRow(const CGridLayout& layout) {
    const GridView& view = layout.GetView();
    const Rect row = layout.GetFocusedRow();
    if (row.IsEmpty() || view.scrollBarWidth == 0) {
        return std::nullopt;
    }
    const ScrollState scroll = {.first = 0,
                                .end = layout.GetTotalHeight(),
                                .page = view.client.height,
                                .position = view.scrollPosition};
    const int target = FindRevealTarget(scroll, row.top + view.scrollPosition, row.GetHeight());
    return target != scroll.position ? std::optional(action::ScrollTo{target}) : std::nullopt;
}

Actions CEditorOpening::Open() const {
    const GridItem* const item = FindEditableItem();
    const int mode = item != nullptr ? item->GetEditMode() : EM_CUSTOM;
    if (mode == EM_MODAL) {
        return {action::EditInDialog{item->id}};
    }
    if (mode != EM_DROPDOWN && !IsTextMode(mode)) {
        return {};
    }
    const GridView& view = m_layout.GetView();
    Actions actions;
    int shift = 0;
    if (const std::optional<action::ScrollTo> reveal = RevealFocusedRow(m_layout)) {
        shift = reveal->position - view.scrollPosition;
        actions.push_back(*reveal);
    }
    const Rect row = m_layout.GetNameRect(*item);
    const Rect cell = {m_model.settings.gutter, row.top - shift, m_layout.GetRowArea().width,
                       row.bottom - shift};
    if (Intersect(cell, {0, 0, view.client.width, view.client.height}).IsEmpty()) {
        return {};
    }
    if (mode == EM_DROPDOWN) {
        actions.push_back(action::DropDown{item->id, cell});
    } else {
        actions.push_back(PlaceTextEdit(*item, cell, view.rowHeight));
    }
    return actions;
}

Actions CEditorOpening::PressButton() const {
    const GridItem* const item = FindEditableItem();
    const int mode = item != nullptr ? item->GetEditMode() : EM_CUSTOM;
    return mode == EM_MODAL || mode == EM_INPLACE_BUTTON ? Actions{action::EditInDialog{item->id}}
                                                         : Actions();
}

bool CEditorOpening::TakesText() const {
    const GridItem* const item = FindEditableItem();
    return item != nullptr && IsTextMode(item->GetEditMode());
}

Actions CEditorOpening::OpenWith(wchar_t character) const {
    Actions actions = TakesText() ? Open() : Actions();
    if (!actions.empty()) {
        std::get<action::OpenTextEdit>(actions.back()).typed = character;
    }
    return actions;
}

bool CEditorOpening::IsBoolean() const {
    const GridItem* const item = FindEditableItem();
    return item != nullptr && item->kind == IT_BOOLEAN && !item->undefined;
}

Actions CEditorOpening::InvertBoolean() {
    if (!IsBoolean()) {
        return {};
    }
    GridItem& item = *m_model.FindItem(m_model.GetFocus().item);
    AdvanceValue(item);
    return {action::Notify{item.id}, action::Repaint{}};
}

// The items of a collapsed section have no row to edit in.
const GridItem* CEditorOpening::FindEditableItem() const {
    const GridItem* const item = m_model.FindItem(m_model.GetFocus().item);
    return item != nullptr && item->editable && m_model.ShowsItemsOf(*item->section) ? item : nullptr;
}

}  // namespace tavrin::propgrid
