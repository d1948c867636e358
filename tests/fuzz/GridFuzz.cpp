// The property grid beside a second one that knows nothing but lists and scans: after every call of a client
// and every event of a user both have the same rows, rectangles, focus, values and scroll bar, and have asked
// the same of the system and of the client. The first three bytes give the window, each further few a step.
#include <algorithm>
#include <bit>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/GridDecoder.h"
#include "tests/fuzz/GridHost.h"
#include "tests/fuzz/SimpleGrid.h"

namespace tests {

namespace {

constexpr std::size_t kMostRows = 40;

// ---- What must hold

// Says what led to a difference before it ends the program.
class CProof {
public:
    void Add(const Step& step, const Reaction& reaction) {
        m_steps.push_back(step);
        if (reaction) {
            m_steps.push_back(*reaction);
        }
    }
    void Holds(bool holds, const char* what) const {
        if (!holds) {
            for (const Step& step : m_steps) {
                Print(step);
            }
            Require(false, what);
        }
    }

private:
    static void Print(const Step& step) {
        std::fprintf(stderr, "step %d id %d number %d other %d flags %d %d seed %u point (%d, %d)\n",
                     step.kind, static_cast<int>(step.id), step.number, step.other, step.flag, step.flag2,
                     step.seed, step.point.x, step.point.y);
    }

    std::vector<Step> m_steps;
};

// Whether the value of the item's kind is the one of the slots.
bool IsValue(const GridItem& item, const Value& value, const SlotValue& slots) {
    switch (item.kind) {
        case IT_CUSTOM:
            return CGridHost::FindCustomIndex(item) == slots.custom;
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            return std::get<std::wstring>(value) == slots.text;
        case IT_INTEGER:
        case IT_COMBO:
            return std::get<int>(value) == slots.number;
        case IT_DOUBLE:
            return std::get<double>(value) == slots.real;
        case IT_BOOLEAN:
            return std::get<bool>(value) == slots.flag;
        case IT_DATE:
        case IT_DATETIME:
            return std::get<DateValue>(value).days == slots.days &&
                   std::get<DateValue>(value).status == slots.status;
        case IT_COLOR:
            return std::get<Color>(value) == slots.color;
        case IT_FONT:
            return std::bit_cast<decltype(slots.font)>(*std::get<FontPointer>(value)) == slots.font;
    }
    return false;
}

void CompareItem(const CGridHost& grid, const GridItem& item, const SimpleItem& simple, const CProof& proof) {
    proof.Holds(item.id == simple.id && item.kind == simple.kind && item.name == simple.name,
                "the items are the same, in the same order");
    proof.Holds(item.editable == simple.editable && item.undefined == simple.undefined &&
                    item.savedUndefined == simple.savedUndefined,
                "the flags of an item are the same");
    proof.Holds(IsValue(item, item.value, simple.value), "the value of an item is the same");
    proof.Holds(item.kind == IT_CUSTOM || IsValue(item, item.saved, simple.saved),
                "the saved copy of an item is the same");
    proof.Holds(item.IsModified() == CSimpleGrid::IsModified(simple), "the same items are modified");
    const CGridLayout& layout = grid.GetLayout();
    proof.Holds(layout.GetNameRect(item) == simple.nameRect, "the name of an item is recorded alike");
    proof.Holds(layout.GetValueRect(item) == simple.valueRect, "the value of an item is recorded alike");
}

void CompareRows(const CGridHost& grid, const CSimpleGrid& simple, const CProof& proof) {
    const std::vector<GridSection*>& sections = grid.GetModel().GetSections();
    proof.Holds(sections.size() == simple.sections.size(), "there are as many sections");
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const GridSection& section = *sections[i];
        const SimpleSection& other = simple.sections[i];
        proof.Holds(section.id == other.id && section.name == other.name &&
                        section.collapsed == other.collapsed && section.items.size() == other.items.size(),
                    "the sections are the same, in the same order");
        proof.Holds(grid.GetLayout().GetGlyphRect(section) == other.glyph &&
                        grid.GetLayout().GetHeaderRect(section) == other.header,
                    "a section is recorded alike");
        for (std::size_t row = 0; row < section.items.size(); ++row) {
            CompareItem(grid, *section.items[row], other.items[row], proof);
        }
    }
}

void CompareWindows(const CGridHost& grid, const CSimpleGrid& simple, const CProof& proof) {
    const GridWindow& window = grid.window;
    const GridWindow& other = simple.window;
    proof.Holds(window.calls == other.calls, "the system and the client get the same calls");
    proof.Holds(window.drawn == other.drawn, "the same rows are drawn");
    proof.Holds(window.bar == other.bar, "the scroll bar is the same");
    proof.Holds(window.editor == other.editor, "the same editor is open");
    proof.Holds(window == other, "the window is the same");
    proof.Holds(grid.asksForPaint || !simple.asksForPaint, "what has changed is painted");
    proof.Holds(grid.IsButtonPressed() == simple.buttonPressed, "the button looks the same");
    const GridSettings& settings = grid.GetModel().settings;
    proof.Holds(settings.gutter == simple.gutter && settings.displayMode == simple.displayMode,
                "the settings are the same");
    const RowId& focus = grid.GetModel().GetFocus();
    proof.Holds(focus.section == simple.focus.section && focus.item == simple.focus.item,
                "the focus is on the same row");
    proof.Holds(grid.GetLayout().GetEditButton() == simple.editButton, "the edit button is recorded alike");
    proof.Holds(grid.GetLayout().GetTotalHeight() == simple.TotalHeight(), "the rows are as high");
}

void PrintHit(const char* grid, Point point, const Hit& hit) {
    std::fprintf(stderr, "%s at (%d, %d): button %d divider %d part %d section %d item %d\n", grid, point.x,
                 point.y, hit.onEditButton, hit.onDivider, hit.part, static_cast<int>(hit.section),
                 static_cast<int>(hit.item));
}

void CompareHits(const CGridHost& grid, const CSimpleGrid& simple, Point point, const CProof& proof) {
    Hit expected = {.onEditButton = simple.IsOnButton(point), .onDivider = simple.IsOnDivider(point)};
    if (const SimpleSection* const section = simple.FindSectionAt(point)) {
        expected.section = section->id;
        expected.part = CSimpleGrid::IsOnGlyph(*section, point) ? HP_GLYPH : HP_HEADER;
    } else if (const SimpleItem* const item = simple.FindItemAt(point)) {
        expected.item = item->id;
        expected.part = CSimpleGrid::IsOnValue(*item, point) ? HP_VALUE : HP_NAME;
    }
    const Hit hit = grid.GetLayout().HitTest(point);
    if (hit != expected) {
        PrintHit("the grid", point, hit);
        PrintHit("the simple grid", point, expected);
    }
    proof.Holds(hit == expected, "the same lies under a point");
}

// Each row that was painted begins where the one above it ends, its value where its name does.
void CheckDrawnRows(const CGridHost& grid, const CProof& proof) {
    const std::vector<DrawnRow>& rows = grid.window.drawn;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        proof.Holds((rows[i].section == kNoId) != (rows[i].item == kNoId), "a row is of one thing");
        proof.Holds(i == 0 || rows[i].row.top == rows[i - 1].row.bottom, "rows are one under the other");
        proof.Holds(rows[i].item == kNoId || rows[i].name.right == rows[i].value.left,
                    "the value is beside the name");
    }
}

// What the user changes, by the grid's own account.
class CChangeWatch {
public:
    explicit CChangeWatch(const CGridModel& model) : m_model(model) {
        for (Id id = 0; id < model.GetItemCount(); ++id) {
            m_before.emplace_back(model.FindItem(id)->value, model.FindItem(id)->undefined);
        }
    }
    void Check(const std::vector<WindowCall>& calls, const CProof& proof) const {
        std::map<Id, int> notified;
        for (const WindowCall& call : calls) {
            notified[call.item] += call.kind == WC_NOTIFY ? 1 : 0;
        }
        for (Id id = 0; id < m_before.size(); ++id) {
            const GridItem& item = *m_model.FindItem(id);
            const bool changed =
                !IsSameValue(item.value, m_before[id].first) || item.undefined != m_before[id].second;
            proof.Holds(notified[id] <= 1, "the owner is notified of a change once");
            proof.Holds(!changed || notified[id] == 1, "the owner is notified of every change");
        }
    }

private:
    const CGridModel& m_model;
    std::vector<std::pair<Value, bool>> m_before;
};

// ---- Both grids together

class CTwoGrids {
public:
    CTwoGrids(Size client, int rowHeight) : m_grid(client, rowHeight), m_simple(client, rowHeight) {}

    void Run(CBytes& bytes);

private:
    void RunStep(const Step& step, const Reaction& reaction);
    void Compare(Point point);
    void CompareHitsOf(const Rect& row);

    CGridHost m_grid;
    CSimpleGrid m_simple;
    CProof m_proof;
    bool m_buttonDown = false;
    std::size_t m_steps = 0;
};

void CTwoGrids::Run(CBytes& bytes) {
    CGridDecoder decoder(bytes, m_simple);
    while (!bytes.IsAtEnd() && m_simple.ListRows().size() < kMostRows) {
        const Step step = decoder.Decode(m_buttonDown);
        Reaction reaction;
        if (step.kind >= kClientSteps && bytes.Below(6) == 5) {
            reaction = decoder.DecodeClientStep();
        }
        RunStep(step, reaction);
        if (bytes.Flag()) {
            RunStep({.kind = ST_PAINT}, {});
        }
    }
}

void CTwoGrids::RunStep(const Step& step, const Reaction& reaction) {
    m_proof.Add(step, reaction);
    m_grid.window.calls.clear();
    m_simple.window.calls.clear();
    m_grid.asksForPaint = false;
    m_simple.asksForPaint = false;
    m_grid.reaction = reaction;
    m_simple.reaction = reaction;
    if (step.kind < kClientSteps) {
        RunClientStep(m_grid, step);
        RunClientStep(m_simple, step);
    } else {
        const CChangeWatch watch(m_grid.GetModel());
        RunUserStep(m_grid, step);
        RunUserStep(m_simple, step);
        if (!reaction) {
            watch.Check(m_grid.window.calls, m_proof);
        }
    }
    m_buttonDown =
        step.kind == ST_PRESS || step.kind == ST_DOUBLE_CLICK || (m_buttonDown && step.kind != ST_RELEASE);
    Compare(step.point);
}

void CTwoGrids::Compare(Point point) {
    const RowId& focus = m_grid.GetModel().GetFocus();
    m_proof.Holds(focus.section == kNoId || focus.item == kNoId, "at most one row has the focus");
    CompareRows(m_grid, m_simple, m_proof);
    CompareWindows(m_grid, m_simple, m_proof);
    CheckDrawnRows(m_grid, m_proof);
    CompareHits(m_grid, m_simple, point, m_proof);
    // One row after each step, each row in its turn.
    if (!m_simple.window.drawn.empty()) {
        CompareHitsOf(m_simple.window.drawn[m_steps++ % m_simple.window.drawn.size()].row);
    }
}

// On both sides of every edge that a row may have.
void CTwoGrids::CompareHitsOf(const Rect& row) {
    const int gutter = m_simple.gutter;
    for (const int x : {13, 14, gutter - 3, gutter - 2, gutter - 1, gutter, row.right - 1, row.right}) {
        CompareHits(m_grid, m_simple, {x, row.top}, m_proof);
        CompareHits(m_grid, m_simple, {x, row.bottom - 1}, m_proof);
    }
    for (const int x : {1, 2, 10, 11}) {
        CompareHits(m_grid, m_simple, {x, row.top + 4}, m_proof);
        CompareHits(m_grid, m_simple, {x, row.top + 13}, m_proof);
    }
}

}  // namespace

}  // namespace tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tests::CBytes bytes(data, size);
    const int width = static_cast<int>(bytes.Next()) * 2;
    const int height = static_cast<int>(bytes.Next());
    tests::CTwoGrids({width, height}, 5 + bytes.Below(20)).Run(bytes);
    return 0;
}
