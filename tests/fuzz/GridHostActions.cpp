// The host: carries out the controllers' actions.
#include <utility>
#include <variant>

#include "propgrid/controller/EditResult.h"
#include "propgrid/model/ValueText.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/GridHost.h"
#include "tests/fuzz/HostedCustomItem.h"

namespace tests {

namespace {

template <class T>
constexpr bool kNamesItem = requires(const T& action) { action.item; };

bool OpensEditor(const Action& asked) {
    return std::holds_alternative<action::OpenTextEdit>(asked) ||
           std::holds_alternative<action::DropDown>(asked) ||
           std::holds_alternative<action::EditInDialog>(asked);
}

}  // namespace

// The item that an action names; none for an action without one.
Id CGridHost::FindNamedItem(const Action& asked) {
    return std::visit(
        []<class T>(const T& action) {
            if constexpr (kNamesItem<T>) {
                return action.item;
            } else {
                return kNoId;
            }
        },
        asked);
}

// Every item that an action names exists when the actions are returned. It may be gone when its action runs;
// only the owner's notification is sent even then.
void CGridHost::Run(const Actions& actions) {
    int editors = 0;
    for (const Action& asked : actions) {
        const Id item = FindNamedItem(asked);
        Require(item == kNoId || m_model.FindItem(item) != nullptr, "an action is for an item that is there");
        editors += OpensEditor(asked) ? 1 : 0;
    }
    Require(editors <= 1, "the actions open at most one editor");
    for (const Action& asked : actions) {
        const Id item = FindNamedItem(asked);
        if (item == kNoId || m_model.FindItem(item) != nullptr ||
            std::holds_alternative<action::Notify>(asked)) {
            std::visit([this](const auto& action) { Do(action); }, asked);
        }
    }
}

void CGridHost::Do(const action::BeginCapture& /*capture*/) {
    Require(!window.captured, "the mouse is captured once");
    window.captured = true;
    Record({.kind = WC_CAPTURE});
}

void CGridHost::Do(const action::EndCapture& /*capture*/) {
    if (std::exchange(window.captured, false)) {
        Record({.kind = WC_END_CAPTURE});
    }
}

void CGridHost::Do(const action::ShowCursor& cursor) {
    window.cursor = cursor.cursor == CU_SIZE ? SC_SIZE : SC_ARROW;
}

void CGridHost::Do(const action::Repaint& /*repaint*/) {
    Repaint();
}

void CGridHost::Do(const action::Relayout& /*relayout*/) {
    Relayout();
}

void CGridHost::Do(const action::ScrollTo& scroll) {
    Require(window.bar.shown, "what scrolls has a bar");
    window.bar.MoveTo(scroll.position);
    UpdateView();
    Repaint();
}

void CGridHost::Do(const action::AskCustomItem& question) {
    Record({.kind = WC_CUSTOM_PRESS, .item = question.item, .rect = question.value, .point = question.point});
    ICustomItem* const custom = m_model.FindItem(question.item)->GetCustomItem();
    Require(custom != nullptr, "a custom item is asked");
    const bool taken = custom->OnLButtonDown({}, {});
    Run(m_mouse.AnswerPress(taken, question.point));
}

void CGridHost::Do(const action::NotifyCustomItem& event) {
    ICustomItem* const custom = m_model.FindItem(event.item)->GetCustomItem();
    Require(custom != nullptr, "a custom item is notified");
    const bool isMove = event.event == CE_MOVE;
    Record({.kind = isMove ? WC_CUSTOM_MOVE : WC_CUSTOM_UP,
            .item = event.item,
            .rect = event.value,
            .point = event.point});
    if (isMove) {
        custom->OnMouseMove({}, {});
    } else {
        custom->OnLButtonUp({}, {});
    }
}

void CGridHost::Do(const action::OpenTextEdit& edit) {
    window.editor = ED_TEXT;
    window.openedText = GetEditText(*m_model.FindItem(edit.item));
    window.text = window.openedText;
    window.typed = false;
    Record({.kind = WC_OPEN_TEXT, .item = edit.item, .rect = edit.rect, .text = window.text});
}

void CGridHost::Do(const action::DropDown& list) {
    window.editor = ED_NONE;
    const GridItem& item = *m_model.FindItem(list.item);
    if (ICustomItem* const custom = item.GetCustomItem()) {
        Record({.kind = WC_CUSTOM_DROP_DOWN, .item = list.item, .rect = list.cell});
        custom->ShowDropDown({});
    } else if (item.kind == IT_DATE) {
        window.editor = ED_CALENDAR;
        Record({.kind = WC_OPEN_CALENDAR, .item = list.item, .rect = list.cell});
    } else {
        window.editor = ED_LIST;
        Record({.kind = WC_OPEN_LIST, .item = list.item, .rect = list.cell});
    }
}

void CGridHost::Do(const action::EditInDialog& dialog) {
    window.editor = ED_NONE;
    const GridItem& item = *m_model.FindItem(dialog.item);
    Require(item.editable, "a dialog is for an editable item alone");
    if (ICustomItem* const custom = item.GetCustomItem()) {
        Record({.kind = WC_CUSTOM_BUTTON, .item = dialog.item});
        if (custom->OnButtonClicked()) {
            ReportCustomChange(dialog.item, custom);
        }
        return;
    }
    const EItemType kind = item.kind;
    Record({.kind = WC_DIALOG, .item = dialog.item});
    React();
    if (m_answer % 2 == 1) {
        Run(TakeDialogValue(m_model, dialog.item, kind, MakeValueOf(kind, MakeValue(m_answer / 2))));
    }
}

void CGridHost::Do(const action::GiveText& text) {
    ICustomItem* const custom = m_model.FindItem(text.item)->GetCustomItem();
    Require(custom != nullptr, "a custom item takes the text");
    Record({.kind = WC_CUSTOM_TEXT, .item = text.item, .text = text.text});
    if (custom->SetStringValue(text.text)) {
        ReportCustomChange(text.item, custom);
    }
}

const ICustomItem* CGridHost::FindCustomItem(Id id) const {
    const GridItem* const item = m_model.FindItem(id);
    return item != nullptr ? item->GetCustomItem() : nullptr;
}

void CGridHost::ReportCustomChange(Id item, const ICustomItem* custom) {
    if (FindCustomItem(item) == custom) {
        Run({action::Notify{item}, action::Repaint{}});
    }
}

void CGridHost::Do(const action::Notify& change) {
    Record({.kind = WC_NOTIFY, .item = change.item});
    React();
}

void CGridHost::Do(const action::DefaultHandling& /*handling*/) {
    Record({.kind = WC_DEFAULT});
}

}  // namespace tests
