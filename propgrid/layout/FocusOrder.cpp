#include "propgrid/layout/FocusOrder.h"

#include <algorithm>
#include <optional>

namespace tavrin::propgrid {

namespace {

// A position among all rows: the section, and in it 0 for the header, n + 1 for the item of row n.
struct Slot {
    std::size_t section;
    std::size_t row;
};

std::optional<Slot> FindSlot(const CGridModel& model, const RowId& row) {
    if (const GridSection* const section = model.FindSection(row.section)) {
        return model.settings.IsCategorized() ? std::optional(Slot{section->position, 0}) : std::nullopt;
    }
    const GridItem* const item = model.FindItem(row.item);
    if (item == nullptr || !model.ShowsItemsOf(*item->section)) {
        return std::nullopt;
    }
    return Slot{item->section->position, item->row + std::size_t{1}};
}

std::optional<Slot> FindFocusedSlot(const CGridModel& model) {
    return FindSlot(model, model.GetFocus());
}

// The first item from `row` on that can have the focus, the last one before `row`; null when there is none.
const GridItem* FindItemFrom(const CGridModel& model, const GridSection& section, std::size_t row) {
    if (model.settings.focusNonEditable) {
        return row < section.items.size() ? section.items[row] : nullptr;
    }
    const auto found = std::lower_bound(section.editableRows.begin(), section.editableRows.end(), row);
    return found != section.editableRows.end() ? section.items[*found] : nullptr;
}

const GridItem* FindItemBefore(const CGridModel& model, const GridSection& section, std::size_t row) {
    if (model.settings.focusNonEditable) {
        const std::size_t end = std::min(row, section.items.size());
        return end > 0 ? section.items[end - 1] : nullptr;
    }
    const auto end = std::lower_bound(section.editableRows.begin(), section.editableRows.end(), row);
    return end != section.editableRows.begin() ? section.items[*(end - 1)] : nullptr;
}

// The first row at or after a slot, the last row before one; no row when there is none up to the end, or the
// start.
RowId FindRowFrom(const CGridModel& model, Slot slot) {
    const std::vector<GridSection*>& sections = model.GetSections();
    for (; slot.section < sections.size(); ++slot.section, slot.row = 0) {
        const GridSection& section = *sections[slot.section];
        if (slot.row == 0 && model.settings.IsCategorized()) {
            return {.section = section.id};
        }
        const std::size_t row = slot.row == 0 ? 0 : slot.row - 1;
        if (const GridItem* const item =
                model.ShowsItemsOf(section) ? FindItemFrom(model, section, row) : nullptr) {
            return {.item = item->id};
        }
    }
    return {};
}

RowId FindRowInSectionBefore(const CGridModel& model, const GridSection& section, std::size_t slotRow) {
    if (slotRow == 0) {
        return {};
    }
    if (const GridItem* const item =
            model.ShowsItemsOf(section) ? FindItemBefore(model, section, slotRow - 1) : nullptr) {
        return {.item = item->id};
    }
    return model.settings.IsCategorized() ? RowId{.section = section.id} : RowId();
}

RowId FindRowBefore(const CGridModel& model, Slot slot) {
    const std::vector<GridSection*>& sections = model.GetSections();
    for (std::size_t index = std::min(slot.section + 1, sections.size()); index-- > 0;) {
        const GridSection& section = *sections[index];
        const std::size_t row = index == slot.section ? slot.row : section.items.size() + 1;
        const RowId found = FindRowInSectionBefore(model, section, row);
        if (found != RowId()) {
            return found;
        }
    }
    return {};
}

}  // namespace

RowId FindNextRow(const CGridModel& model) {
    if (const std::optional<Slot> focused = FindFocusedSlot(model)) {
        const RowId next = FindRowFrom(model, {focused->section, focused->row + 1});
        if (next != RowId()) {
            return next;
        }
    }
    return FindFirstRow(model);
}

RowId FindPreviousRow(const CGridModel& model) {
    const std::optional<Slot> focused = FindFocusedSlot(model);
    if (!focused) {
        return {};
    }
    const RowId previous = FindRowBefore(model, *focused);
    return previous != RowId() ? previous : FindLastRow(model);
}

RowId FindFirstRow(const CGridModel& model) {
    return FindRowFrom(model, {0, 0});
}

RowId FindLastRow(const CGridModel& model) {
    return FindRowBefore(model, {model.GetSections().size(), 0});
}

RowId FindRowAhead(const CGridModel& model, int count) {
    std::optional<Slot> slot = FindFocusedSlot(model);
    if (!slot) {
        return FindFirstRow(model);
    }
    RowId reached = model.GetFocus();
    for (; slot && count > 0; --count) {
        const RowId next = FindRowFrom(model, {slot->section, slot->row + 1});
        slot = FindSlot(model, next);
        reached = slot ? next : reached;
    }
    return reached;
}

RowId FindRowBack(const CGridModel& model, int count) {
    std::optional<Slot> slot = FindFocusedSlot(model);
    RowId reached = slot ? model.GetFocus() : RowId();
    for (; slot && count > 0; --count) {
        const RowId previous = FindRowBefore(model, *slot);
        slot = FindSlot(model, previous);
        reached = slot ? previous : reached;
    }
    return reached;
}

}  // namespace tavrin::propgrid
