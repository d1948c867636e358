// The simple grid: its contents, its rows, where they stand, what lies under a point.
#include "tests/fuzz/SimpleGrid.h"

#include <algorithm>
#include <cwchar>

namespace tests {

namespace {

bool Contains(const Rect& rect, Point point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

std::wstring Format(const wchar_t* format, auto number) {
    wchar_t text[64] = {};
    std::swprintf(text, 64, format, number);
    return text;
}

}  // namespace

CSimpleGrid::CSimpleGrid(Size client, int rowHeight) : gutter(client.width / 2), m_rowHeight(rowHeight) {
    window.client = client;
}

// ---- The client's calls

void CSimpleGrid::AddSection(const std::wstring& name, bool collapsed, Id before) {
    SimpleSection section;
    section.id = m_nextSection++;
    section.name = name;
    section.collapsed = collapsed;
    const auto next = std::find_if(sections.begin(), sections.end(),
                                   [&](const SimpleSection& other) { return other.id == before; });
    sections.insert(next, section);
    Relayout();
}

void CSimpleGrid::AddItem(Id section, EItemType kind, const std::wstring& name, const SlotValue& value,
                          bool editable, bool undefined) {
    SimpleSection* const parent = FindSection(section);
    if (parent == nullptr) {
        return;
    }
    for (const SimpleItem& other : parent->items) {
        if (other.name == name) {
            return;
        }
    }
    SimpleItem item;
    item.id = m_nextItem++;
    item.kind = kind;
    item.name = name;
    item.value = value;
    item.editable = editable;
    item.undefined = undefined;
    parent->items.push_back(item);
    TakeSavedCopy(item.id);
    Relayout();
}

// The focus stays, and an open editor.
void CSimpleGrid::Reset() {
    sections.clear();
    m_nextSection = 0;
    m_nextItem = 0;
    Relayout();
}

void CSimpleGrid::SetDisplayMode(std::uint32_t mode) {
    displayMode = mode;
    Relayout();
}

void CSimpleGrid::SetGutter(int x) {
    gutter = x;
    Repaint();
}

void CSimpleGrid::SetFocusNonEditable(bool canFocus) {
    focusNonEditable = canFocus;
    Repaint();
}

void CSimpleGrid::SetCollapsed(Id id, bool collapsed) {
    if (SimpleSection* const section = FindSection(id)) {
        section->collapsed = collapsed;
        Relayout();
    }
}

void CSimpleGrid::SetEditable(Id id, bool editable) {
    if (SimpleItem* const item = FindItem(id)) {
        item->editable = editable;
        Repaint();
    }
}

// An editor of the item ends first.
void CSimpleGrid::SetValue(Id id, const SlotValue& value) {
    if (FindItem(id) != nullptr && focus.item == id) {
        EndEditor();
    }
    if (SimpleItem* const item = FindItem(id)) {
        item->value = value;
        item->undefined = false;
        Repaint();
    }
}

void CSimpleGrid::SetUndefined(Id id, bool undefined) {
    if (FindItem(id) != nullptr && focus.item == id) {
        EndEditor();
    }
    SimpleItem* const item = FindItem(id);
    if (item != nullptr && item->kind != IT_CUSTOM) {
        item->undefined = undefined;
        Repaint();
    }
}

void CSimpleGrid::SetChoices(Id id, int count) {
    if (SimpleItem* const item = FindItem(id); item != nullptr && item->kind == IT_COMBO) {
        item->choices = count;
        Repaint();
    }
}

// A custom item's handler may remove rows.
void CSimpleGrid::AcceptValues() {
    for (Id id = 0; id < m_nextItem; ++id) {
        TakeSavedCopy(id);
    }
    Repaint();
}

void CSimpleGrid::FocusItem(Id id) {
    if (FindItem(id) != nullptr) {
        MoveFocus({.item = id});
    }
}

void CSimpleGrid::FocusSection(Id id) {
    if (FindSection(id) != nullptr) {
        MoveFocus({.section = id});
    }
}

void CSimpleGrid::ChangeCustom(unsigned index, const CustomState& state) {
    window.customs[index] = state;
}

void CSimpleGrid::TakeSavedCopy(Id id) {
    SimpleItem* const item = FindItem(id);
    item->saved = item->value;
    item->savedUndefined = item->undefined;
    if (item->kind == IT_CUSTOM) {
        Record({.kind = WC_CUSTOM_ACCEPT, .item = item->value.custom});
        React();
    }
}

void CSimpleGrid::React() {
    if (const Reaction step = std::exchange(reaction, std::nullopt)) {
        RunClientStep(*this, *step);
    }
}

// ---- The contents

SimpleSection* CSimpleGrid::FindSection(Id id) {
    for (SimpleSection& section : sections) {
        if (section.id == id) {
            return &section;
        }
    }
    return nullptr;
}

const SimpleSection* CSimpleGrid::FindSectionOf(Id item) const {
    for (const SimpleSection& section : sections) {
        for (const SimpleItem& candidate : section.items) {
            if (candidate.id == item) {
                return &section;
            }
        }
    }
    return nullptr;
}

const SimpleItem* CSimpleGrid::FindItem(Id id) const {
    for (const SimpleSection& section : sections) {
        for (const SimpleItem& item : section.items) {
            if (item.id == id) {
                return &item;
            }
        }
    }
    return nullptr;
}

int CSimpleGrid::EditModeOf(const SimpleItem& item) const {
    if (item.kind == IT_CUSTOM) {
        return window.customs[item.value.custom].mode;
    }
    if (item.kind == IT_STRING || item.kind == IT_INTEGER || item.kind == IT_DOUBLE) {
        return EM_INPLACE;
    }
    const bool dropsDown = item.kind == IT_COMBO || item.kind == IT_BOOLEAN || item.kind == IT_DATE;
    return dropsDown ? EM_DROPDOWN : EM_MODAL;
}

bool CSimpleGrid::IsModified(const SimpleItem& item) {
    const SlotValue& now = item.value;
    const SlotValue& then = item.saved;
    switch (item.kind) {
        case IT_CUSTOM:
            return false;
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            return now.text != then.text;
        case IT_INTEGER:
        case IT_COMBO:
            return now.number != then.number;
        case IT_DOUBLE:
            return now.real != then.real;
        case IT_BOOLEAN:
            return now.flag != then.flag;
        case IT_DATE:
        case IT_DATETIME:
            return now.days != then.days || now.status != then.status;
        case IT_COLOR:
            return now.color != then.color;
        case IT_FONT:
            return now.font != then.font;
    }
    return false;
}

std::wstring CSimpleGrid::EditTextOf(const SimpleItem& item) const {
    switch (item.kind) {
        case IT_CUSTOM:
            return window.customs[item.value.custom].text;
        case IT_STRING:
            return item.value.text;
        case IT_INTEGER:
            return item.undefined ? std::wstring() : Format(L"%d", item.value.number);
        case IT_DOUBLE:
            return item.undefined ? std::wstring() : Format(L"%g", item.value.real);
        default:
            return {};
    }
}

std::vector<SimpleRow> CSimpleGrid::ListRows() const {
    std::vector<SimpleRow> rows;
    for (const SimpleSection& section : sections) {
        if (IsCategorized()) {
            rows.push_back({.section = section.id});
        }
        if (IsCategorized() && section.collapsed) {
            continue;
        }
        for (const SimpleItem& item : section.items) {
            rows.push_back({.item = item.id});
        }
    }
    return rows;
}

// ---- Layout and paint

void CSimpleGrid::Relayout() {
    const int position = window.bar.shown ? window.bar.position : 0;
    const int total = TotalHeight();
    if (total >= window.client.height) {
        window.bar.Show(total, window.client.height, std::min(position, total));
    } else {
        window.bar.shown = false;
    }
    Repaint();
}

// Without a bar a new size changes nothing else.
void CSimpleGrid::Resize(Size client) {
    window.client = client;
    if (window.bar.exists) {
        Relayout();
    }
}

bool CSimpleGrid::IsInSight(const Rect& row) const {
    return row.right > 0 && row.top < window.client.height && row.bottom > 0;
}

void CSimpleGrid::Paint() {
    window.drawn.clear();
    int y = window.bar.shown ? -window.bar.position : 0;
    const int width = window.client.width - (window.bar.shown ? ScrollBar::kWidth : 0);
    std::vector<SimpleItem*> all;
    for (SimpleSection& section : sections) {
        section.glyph = {};
        section.header = {};
        if (displayMode != 1) {
            section.header = {0, y, width, y + m_rowHeight};
        }
        if (IsCategorized()) {
            if (IsInSight(section.header)) {
                window.drawn.push_back({.section = section.id, .row = section.header});
                section.glyph = {2, y + 4, 11, y + 13};
                section.header.left = 14;
            }
            y += m_rowHeight;
        }
        for (SimpleItem& item : section.items) {
            all.push_back(&item);
            if (displayMode != 1 && !(IsCategorized() && section.collapsed)) {
                PaintItem(item, y, width);
                y += m_rowHeight;
            }
        }
    }
    if (displayMode == 1) {
        std::stable_sort(all.begin(), all.end(),
                         [](const SimpleItem* a, const SimpleItem* b) { return a->name < b->name; });
        for (SimpleItem* const item : all) {
            PaintItem(*item, y, width);
            y += m_rowHeight;
        }
    }
}

void CSimpleGrid::PaintItem(SimpleItem& item, int y, int width) {
    const Rect row = {0, y, width, y + m_rowHeight};
    item.nameRect = row;
    item.valueRect = {};
    item.drawn = IsInSight(row);
    if (!item.drawn) {
        return;
    }
    DrawnRow drawn = {.item = item.id, .row = row};
    item.nameRect.right = gutter;
    item.valueRect = {gutter, y, width, y + m_rowHeight};
    const int mode = EditModeOf(item);
    if (item.id == focus.item && item.editable && mode != EM_CUSTOM) {
        editButton = {width - m_rowHeight, y, width, y + m_rowHeight};
        item.valueRect.right = editButton.left;
        drawn.button = editButton;
        drawn.editMode = mode;
        if (mode == EM_INPLACE || mode == EM_INPLACE_BUTTON) {
            editButton.left = gutter;
        }
    }
    drawn.name = item.nameRect;
    drawn.value = item.valueRect;
    window.drawn.push_back(drawn);
}

// ---- What lies under a point

// The focused item's, as long as its value is to be seen and may be edited.
bool CSimpleGrid::IsOnButton(Point point) const {
    const SimpleItem* const item = FindFocusedItem();
    if (item == nullptr || !item->editable || !item->drawn) {
        return false;
    }
    const bool hidden = IsCategorized() && FindSectionOf(item->id)->collapsed;
    return !hidden && Contains(editButton, point);
}

bool CSimpleGrid::IsOnDivider(Point point) const {
    return point.x > gutter - 3 && point.x < gutter + 3;
}

bool CSimpleGrid::IsOnGlyph(const SimpleSection& section, Point point) {
    return Contains(section.glyph, point);
}

const SimpleSection* CSimpleGrid::FindSectionAt(Point point) const {
    for (const SimpleSection& section : sections) {
        if (IsCategorized() && (Contains(section.glyph, point) || Contains(section.header, point))) {
            return &section;
        }
    }
    return nullptr;
}

bool CSimpleGrid::IsOnValue(const SimpleItem& item, Point point) {
    return Contains(item.valueRect, point);
}

const SimpleItem* CSimpleGrid::FindItemAt(Point point) const {
    for (const SimpleSection& section : sections) {
        if (IsCategorized() && section.collapsed) {
            continue;
        }
        for (const SimpleItem& item : section.items) {
            if (CanFocus(item) && (Contains(item.nameRect, point) || Contains(item.valueRect, point))) {
                return &item;
            }
        }
    }
    return nullptr;
}

}  // namespace tests
