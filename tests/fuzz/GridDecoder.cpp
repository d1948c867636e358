#include "tests/fuzz/GridDecoder.h"

#include <iterator>

namespace tests {

namespace {

// Rows are what all else needs.
constexpr EStep kClientKinds[] = {
    ST_ADD_ITEM,
    ST_ADD_ITEM,
    ST_ADD_ITEM,
    ST_ADD_SECTION,
    ST_RESET,
    ST_REBUILD,
    ST_MODE,
    ST_GUTTER,
    ST_COLLAPSE,
    ST_EDITABLE,
    ST_VALUE,
    ST_UNDEFINED,
    ST_FOCUS_NON_EDITABLE,
    ST_CHOICES,
    ST_ACCEPT,
    ST_FOCUS_ITEM,
    ST_CUSTOM,
    ST_FOCUS_SECTION,
};

// Presses, releases and keys come more often than all else.
constexpr EStep kUserKinds[] = {
    ST_PRESS, ST_PRESS,    ST_PRESS, ST_PRESS, ST_MOVE,   ST_DOUBLE_CLICK, ST_LOSE_CAPTURE,
    ST_KEY,   ST_KEY,      ST_KEY,   ST_WHEEL, ST_SCROLL, ST_RESIZE,       ST_CHARACTER,
    ST_TYPE,  ST_END_TEXT, ST_DATE,  ST_PAINT, ST_CHOOSE, ST_CLOSE_EDITOR,
};

int NumberOfClientStep(EStep kind, int number) {
    switch (kind) {
        case ST_ADD_ITEM:
        case ST_REBUILD:
            return number % (IT_FONT + 1);
        case ST_MODE:
        case ST_CHOICES:
            return number % 4;
        case ST_GUTTER:
            return number * 2 - 20;
        default:
            return number % (EM_INPLACE_BUTTON + 2);
    }
}

}  // namespace

Id CGridDecoder::DecodeItem() {
    return static_cast<Id>(m_bytes.Below(12));
}

Id CGridDecoder::DecodeSection() {
    const int id = m_bytes.Below(5);
    return id == 4 ? kNoId : static_cast<Id>(id);
}

// On one of the edges, beside them, or in the middle.
int CGridDecoder::DecodeNear(int low, int high) {
    const int values[] = {(low + high) / 2, low, low - 1, high - 1, high};
    return values[m_bytes.Below(std::size(values))];
}

// Something that was painted.
Rect CGridDecoder::DecodeTarget() {
    const int part = m_bytes.Below(4);
    if (part == 0 || m_grid.window.drawn.empty()) {
        return m_grid.editButton;
    }
    const auto index = static_cast<std::size_t>(m_bytes.Next()) % m_grid.window.drawn.size();
    const DrawnRow& row = m_grid.window.drawn[index];
    if (row.item != kNoId) {
        return part == 1 ? row.name : part == 2 ? row.value : row.button;
    }
    return part == 1 ? Rect{2, row.row.top + 4, 11, row.row.top + 13} : row.row;
}

Point CGridDecoder::DecodePoint() {
    const int way = m_bytes.Below(8);
    if (way == 0) {
        const int x = static_cast<int>(m_bytes.Next()) * 2 - 50;
        return {x, static_cast<int>(m_bytes.Next()) - 20};
    }
    if (way == 1) {
        const int x = m_grid.gutter - 4 + m_bytes.Below(9);
        return {x, static_cast<int>(m_bytes.Next())};
    }
    const Rect target = DecodeTarget();
    const int x = DecodeNear(target.left, target.right);
    return {x, DecodeNear(target.top, target.bottom)};
}

Step CGridDecoder::DecodeClientStep() {
    Step step;
    step.kind = kClientKinds[m_bytes.Below(std::size(kClientKinds))];
    const bool ofSection = step.kind == ST_ADD_SECTION || step.kind == ST_ADD_ITEM ||
                           step.kind == ST_COLLAPSE || step.kind == ST_FOCUS_SECTION;
    step.id = ofSection ? DecodeSection() : DecodeItem();
    step.seed = m_bytes.Next();
    const unsigned flags = m_bytes.Next();
    step.flag = (flags % 4 == 0) == (step.kind == ST_ADD_SECTION);
    step.flag2 = flags / 4 % 4 == 0;
    step.number = NumberOfClientStep(step.kind, static_cast<int>(flags / 16 + step.seed));
    step.other = static_cast<int>(step.id % kCustomItems);
    return step;
}

Step CGridDecoder::DecodeUserStep(bool buttonDown) {
    Step step;
    step.kind = kUserKinds[m_bytes.Below(std::size(kUserKinds))];
    const bool isButton = step.kind == ST_PRESS || step.kind == ST_DOUBLE_CLICK;
    if (isButton && buttonDown) {
        step.kind = ST_RELEASE;
    }
    if (isButton || step.kind == ST_MOVE) {
        step.point = DecodePoint();
    }
    step.seed = m_bytes.Next();
    step.flag = step.seed % 4 == 0;
    DecodeNumbers(step);
    return step;
}

void CGridDecoder::DecodeNumbers(Step& step) {
    const int seed = static_cast<int>(step.seed);
    switch (step.kind) {
        case ST_KEY:
            step.number = 36 + seed % 6;
            break;
        case ST_CHARACTER:
            step.number = L"*/+-a"[seed % 5];
            break;
        case ST_WHEEL:
            step.number = (seed - 128) * 5;
            break;
        case ST_SCROLL:
            step.number = seed % 11;
            step.other = static_cast<int>(m_bytes.Next()) * 3 - 100;
            break;
        case ST_RESIZE:
            step.number = seed * 2;
            step.other = static_cast<int>(m_bytes.Next());
            break;
        default:
            step.number = seed % 6 - 1;
            break;
    }
}

Step CGridDecoder::Decode(bool buttonDown) {
    return m_bytes.Below(3) == 0 ? DecodeClientStep() : DecodeUserStep(buttonDown);
}

}  // namespace tests
