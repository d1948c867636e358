#include "propgrid/model/ValueEdit.h"

#include <cmath>
#include <utility>

#include "propgrid/model/TypedNumber.h"

namespace tavrin::propgrid {

namespace {

bool TakeValue(GridItem& item, Value value) {
    item.value = std::move(value);
    item.undefined = false;
    return true;
}

// From an index outside the choices too the next one is a choice.
int NextChoice(int index, std::size_t choices) {
    const auto count = static_cast<long long>(choices);
    const long long next = (index + 1LL) % count;
    return static_cast<int>(next < 0 ? next + count : next);
}

}  // namespace

bool IsEditedAsText(const GridItem& item) {
    return item.kind == IT_STRING || item.kind == IT_INTEGER || item.kind == IT_DOUBLE ||
           item.kind == IT_CUSTOM;
}

bool TakeText(GridItem& item, const std::wstring& text, bool typed) {
    if (text.empty() && item.kind != IT_STRING) {
        return false;
    }
    if (typed && item.kind == IT_STRING) {
        item.value = text;
    } else if (typed && item.kind == IT_INTEGER) {
        item.value = ReadTypedInteger(text);
    } else if (typed) {
        item.value = ReadTypedReal(text);
    }
    item.undefined = false;
    return true;
}

bool TakeChoice(GridItem& item, int index) {
    switch (item.kind) {
        case IT_BOOLEAN:
            return TakeValue(item, index == 0);
        case IT_COMBO:
            return TakeValue(item, index);
        default:
            return false;
    }
}

bool TakeDate(GridItem& item, const DateValue& date) {
    // The calendar's selection carries a time of day; the fraction counts away from midnight on both sides of
    // the first day.
    return item.kind == IT_DATE && TakeValue(item, DateValue{std::trunc(date.days), date.status});
}

bool AdvanceValue(GridItem& item) {
    if (item.undefined) {
        return false;
    }
    if (item.kind == IT_BOOLEAN) {
        return TakeValue(item, !std::get<bool>(item.value));
    }
    if (item.kind == IT_COMBO && !item.options.empty()) {
        return TakeValue(item, NextChoice(std::get<int>(item.value), item.options.size()));
    }
    return false;
}

}  // namespace tavrin::propgrid
