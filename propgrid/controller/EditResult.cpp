#include "propgrid/controller/EditResult.h"

#include <utility>

#include "propgrid/model/ValueEdit.h"

namespace tavrin::propgrid {

namespace {

Actions ReportChange(Id item) {
    return {action::Notify{item}, action::Repaint{}};
}

}  // namespace

Actions TakeEditText(CGridModel& model, Id item, const std::wstring& text, bool typed) {
    GridItem* const record = model.FindItem(item);
    if (record == nullptr || !IsEditedAsText(*record)) {
        return {};
    }
    if (record->kind == IT_CUSTOM) {
        return {action::GiveText{item, text, typed}, action::Repaint{}};
    }
    return TakeText(*record, text, typed) ? ReportChange(item) : Actions{action::Repaint{}};
}

Actions TakeListChoice(CGridModel& model, Id item, int index) {
    GridItem* const record = model.FindItem(item);
    return record != nullptr && TakeChoice(*record, index) ? ReportChange(item) : Actions();
}

Actions TakeCalendarDate(CGridModel& model, Id item, const DateValue& date) {
    GridItem* const record = model.FindItem(item);
    return record != nullptr && TakeDate(*record, date) ? ReportChange(item) : Actions();
}

Actions TakeDialogValue(CGridModel& model, Id item, EItemType kind, Value value) {
    GridItem* const record = model.FindItem(item);
    if (record == nullptr || record->kind != kind) {
        return {};
    }
    record->value = std::move(value);
    record->undefined = false;
    return ReportChange(item);
}

}  // namespace tavrin::propgrid
