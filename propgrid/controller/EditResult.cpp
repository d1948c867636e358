#include "propgrid/controller/EditResult.h"

#include <utility>

#include "propgrid/model/ValueEdit.h"

namespace tavrin::propgrid {

namespace {

Actions ReportChange(Id item) {
    return {action::Notify{item}, action::Repaint{}};
}

}  // namespace

Actions TakeEditText(CGridModel& model, Id id, const std::wstring& text, bool typed) {
    GridItem* const item = model.FindItem(id);
    if (item == nullptr || !IsEditedAsText(*item)) {
        return {};
    }
    if (item->kind == IT_CUSTOM) {
        return {action::GiveText{id, text, typed}, action::Repaint{}};
    }
    return TakeText(*item, text, typed) ? ReportChange(id) : Actions{action::Repaint{}};
}

Actions TakeListChoice(CGridModel& model, Id id, int index) {
    GridItem* const item = model.FindItem(id);
    return item != nullptr && TakeChoice(*item, index) ? ReportChange(id) : Actions();
}

Actions TakeCalendarDate(CGridModel& model, Id id, const DateValue& date) {
    GridItem* const item = model.FindItem(id);
    return item != nullptr && TakeDate(*item, date) ? ReportChange(id) : Actions();
}

Actions TakeDialogValue(CGridModel& model, Id id, EItemType kind, Value value) {
    GridItem* const item = model.FindItem(id);
    if (item == nullptr || item->kind != kind) {
        return {};
    }
    item->value = std::move(value);
    item->undefined = false;
    return ReportChange(id);
}

}  // namespace tavrin::propgrid
