// The simple grid: the keyboard and scrolling.
#include <algorithm>
#include <cstdlib>

#include "tests/fuzz/SimpleGrid.h"

namespace tests {

namespace {

int OverlapHeight(const Rect& rect, Size client) {
    const bool besides = rect.left >= client.width || rect.right <= 0;
    const int height = std::min(rect.bottom, client.height) - std::max(rect.top, 0);
    return besides ? 0 : std::max(height, 0);
}

bool IsEmpty(const Rect& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

}  // namespace

bool CSimpleGrid::CanFocus(const SimpleRow& row) const {
    const SimpleItem* const item = FindItem(row.item);
    return item == nullptr || CanFocus(*item);
}

// From a row that is not there the first one; no row when none can have the focus.
SimpleRow CSimpleGrid::FindNextRow() const {
    const std::vector<SimpleRow> rows = ListRows();
    const auto found = std::find(rows.begin(), rows.end(), focus);
    const std::size_t start = found == rows.end() ? 0 : static_cast<std::size_t>(found - rows.begin()) + 1;
    for (std::size_t step = 0; step < rows.size(); ++step) {
        const SimpleRow& next = rows[(start + step) % rows.size()];
        if (CanFocus(next)) {
            return next;
        }
    }
    return {};
}

// The last one above the focused row, whether that may have the focus or not, or else below it; no row above
// one that is not there.
SimpleRow CSimpleGrid::FindPreviousRow() const {
    const std::vector<SimpleRow> rows = ListRows();
    const auto found = std::find(rows.begin(), rows.end(), focus);
    if (found == rows.end()) {
        return {};
    }
    const auto start = static_cast<std::size_t>(found - rows.begin());
    for (std::size_t step = 1; step <= rows.size(); ++step) {
        const SimpleRow& previous = rows[(start + rows.size() - step) % rows.size()];
        if (CanFocus(previous)) {
            return previous;
        }
    }
    return {};
}

void CSimpleGrid::PressKey(unsigned key) {
    enum EKey : unsigned { LEFT = 37, UP, RIGHT, DOWN };
    if (key < LEFT || key > DOWN) {
        Record({.kind = WC_DEFAULT});
        return;
    }
    EndEditor();
    Paint();
    const SimpleSection* const section = FindSection(focus.section);
    if (key == LEFT && section != nullptr && !section->collapsed) {
        SetCollapsed(section->id, true);
    } else if (key == RIGHT && section != nullptr && section->collapsed) {
        SetCollapsed(section->id, false);
    } else {
        FocusRow(key == DOWN || key == RIGHT ? FindNextRow() : FindPreviousRow());
    }
}

void CSimpleGrid::FocusRow(const SimpleRow& row) {
    if (row == SimpleRow()) {
        return;
    }
    MoveFocus(row);
    const SimpleItem* const item = FindItem(row.item);
    const Rect rect = item != nullptr ? item->nameRect : FindSection(row.section)->header;
    if (!IsEmpty(rect) && OverlapHeight(rect, window.client) != m_rowHeight) {
        ScrollThumb(rect.top);
    }
}

void CSimpleGrid::TypeCharacter(wchar_t character) {
    switch (character) {
        case L'*':
            return CollapseAll(false);
        case L'/':
            return CollapseAll(true);
        case L'+':
            return SetCollapsed(focus.section, false);
        case L'-':
            return SetCollapsed(focus.section, true);
        default:
            return Record({.kind = WC_DEFAULT});
    }
}

void CSimpleGrid::CollapseAll(bool collapse) {
    for (SimpleSection& section : sections) {
        section.collapsed = collapse;
    }
    if (!sections.empty()) {
        Relayout();
    }
}

// ---- Scrolling

// Not out of an end, where the bar is already.
void CSimpleGrid::ScrollThumb(int thumb) {
    ScrollBar& bar = window.bar;
    const bool leavesStart = bar.position == 0 && thumb < bar.position;
    const bool leavesEnd = bar.position == bar.end - bar.page && thumb > bar.position;
    if (bar.shown && thumb != bar.position && !leavesStart && !leavesEnd) {
        bar.MoveTo(thumb);
        Repaint();
    }
}

void CSimpleGrid::Scroll(unsigned code, int thumb) {
    enum ECode { LINE_UP, LINE_DOWN, PAGE_UP, PAGE_DOWN, THUMB_POSITION, THUMB_TRACK, TOP, BOTTOM, END };
    ScrollBar& bar = window.bar;
    if (!bar.shown || code == END) {
        return;
    }
    EndEditor();
    if (code == THUMB_POSITION || code == THUMB_TRACK) {
        ScrollThumb(thumb);
        return;
    }
    if (!bar.shown) {
        return;
    }
    const int last = bar.end - bar.page;
    const int step = code == LINE_UP || code == LINE_DOWN ? m_rowHeight : window.client.height;
    if (code == LINE_UP || code == PAGE_UP) {
        bar.MoveTo(std::max(bar.position - step, 0));
    } else if (code == LINE_DOWN || code == PAGE_DOWN) {
        bar.MoveTo(std::min(bar.position + step, last));
    } else if (code == TOP || code == BOTTOM) {
        bar.MoveTo(code == TOP ? 0 : last);
    }
    Repaint();
}

// Line by line. The wheel ends an editor, which else would stay where its row was.
void CSimpleGrid::TurnWheel(int delta) {
    const int lines = std::abs(delta) / 120 * 3;
    if (lines == 0 || !window.bar.shown) {
        return;
    }
    if (window.editor != ED_NONE) {
        EndEditor();
    }
    for (int line = 0; line < lines; ++line) {
        Scroll(delta > 0 ? 0 : 1, 0);
    }
}

}  // namespace tests
