#include "propgrid/ActionRunner.h"

#include <utility>

#include "propgrid/PressWatch.h"
#include "propgrid/controller/EditResult.h"
#include "propgrid/editors/GridDialogs.h"
#include "propgrid/model/ICustomItem.h"
#include "propgrid/model/ValueText.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

// One action may lead to others, by its answer or because the client's code sends the grid a message.
bool CActionRunner::Run(const Actions& actions) {
    const bool outer = std::exchange(m_defaultFollows, false);
    for (const Action& next : actions) {
        std::visit([this](const auto& kind) { Do(kind); }, next);
    }
    return std::exchange(m_defaultFollows, outer);
}

void CActionRunner::Do(const action::BeginCapture& /*capture*/) {
    ::SetCapture(Window());
}

// Another window may have the mouse by now.
void CActionRunner::Do(const action::EndCapture& /*capture*/) {
    if (::GetCapture() == Window()) {
        ::ReleaseCapture();
    }
}

void CActionRunner::Do(const action::ShowCursor& cursor) {
    ::SetCursor(::LoadCursor(nullptr, cursor.cursor == CU_SIZE ? IDC_SIZEWE : IDC_ARROW));
}

void CActionRunner::Do(const action::Repaint& /*repaint*/) {
    m_parts.window.Repaint();
}

void CActionRunner::Do(const action::Relayout& /*relayout*/) {
    m_parts.window.Relayout();
}

void CActionRunner::Do(const action::ScrollTo& scroll) {
    m_parts.scrollBar.SetScrollPos(scroll.position);
    m_parts.window.Repaint();
}

// A press whose button was released while the item had it is over.
void CActionRunner::Do(const action::AskCustomItem& question) {
    ICustomItem* const custom = FindCustomItem(question.item);
    if (custom == nullptr) {
        return;
    }
    const CPressWatch watch(Window());
    const bool taken = custom->OnLButtonDown(ToCRect(question.value), ToCPoint(question.point));
    if (Window() != nullptr && !watch.WasReleased()) {
        m_defaultFollows = Run(m_parts.mouse.AnswerPress(taken, question.point));
    }
}

void CActionRunner::Do(const action::NotifyCustomItem& event) {
    if (ICustomItem* const custom = FindCustomItem(event.item)) {
        const auto operation = event.event == CE_MOVE ? &ICustomItem::OnMouseMove : &ICustomItem::OnLButtonUp;
        (custom->*operation)(ToCRect(event.value), ToCPoint(event.point));
    }
}

void CActionRunner::Do(const action::OpenTextEdit& edit) {
    m_parts.editors.Close();
    if (const GridItem* const item = FindEditableItem(edit.item)) {
        const std::wstring name = item->name;
        m_parts.editors.OpenTextEdit(edit.rect, name, GetEditText(*item), edit.typed);
    }
}

void CActionRunner::Do(const action::DropDown& list) {
    m_parts.editors.Close();
    const GridItem* const item = FindEditableItem(list.item);
    if (item == nullptr) {
        return;
    }
    if (item->kind == IT_CUSTOM) {
        item->GetCustomItem()->ShowDropDown(ToCRect(list.cell));
    } else if (item->kind == IT_DATE) {
        m_parts.editors.OpenCalendar(std::get<DateValue>(item->value), list.cell);
    } else {
        m_parts.editors.OpenList(*item, list.cell);
    }
}

void CActionRunner::Do(const action::EditInDialog& dialog) {
    m_parts.editors.Close();
    const GridItem* const item = FindEditableItem(dialog.item);
    if (item == nullptr) {
        return;
    }
    if (ICustomItem* const custom = item->GetCustomItem()) {
        if (custom->OnButtonClicked()) {
            ReportCustomChange(dialog.item, custom);
        }
        return;
    }
    const EItemType kind = item->kind;
    CWnd* const parent = m_parts.window.GetWindow().GetParent();
    std::optional<Value> value =
        AskForValue({parent, &m_parts.fonts.normal, m_parts.model.settings.texts}, *item);
    if (value) {
        Run(TakeDialogValue(m_parts.model, dialog.item, kind, std::move(*value)));
    }
}

// A custom item may lead to the end of another edit meanwhile.
void CActionRunner::Do(const action::GiveText& text) {
    ICustomItem* const custom = FindCustomItem(text.item);
    if (custom == nullptr) {
        return;
    }
    const bool outer = std::exchange(m_editUntouched, !text.typed);
    const bool changed = custom->SetStringValue(text.text);
    m_editUntouched = outer;
    if (changed) {
        ReportCustomChange(text.item, custom);
    }
}

void CActionRunner::Do(const action::Notify& change) {
    m_parts.window.NotifyChanged(change.item);
}

void CActionRunner::Do(const action::DefaultHandling& /*handling*/) {
    m_defaultFollows = true;
}

// Null when the end of the last editor led to the removal of the item, or to its protection.
const GridItem* CActionRunner::FindEditableItem(Id id) const {
    const GridItem* const item = m_parts.model.FindItem(id);
    return item != nullptr && item->editable ? item : nullptr;
}

ICustomItem* CActionRunner::FindCustomItem(Id id) const {
    const GridItem* const item = m_parts.model.FindItem(id);
    return item != nullptr ? item->GetCustomItem() : nullptr;
}

// Unless the custom item has lost its row meanwhile.
void CActionRunner::ReportCustomChange(Id item, const ICustomItem* custom) {
    if (FindCustomItem(item) == custom) {
        Run({action::Notify{item}, action::Repaint{}});
    }
}

}  // namespace tavrin::propgrid
