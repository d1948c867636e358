#include "imagedlg/ChoiceLayout.h"

namespace tavrin::imagedlg {

namespace {

constexpr int none = kCellEmpty;
constexpr int logo = kCellLogo;

// Four choices form a block of two by two in the left columns. With five the logo fills the middle of the
// bottom row, so the fifth choice is at its end.
constexpr int kContents[kMaxChoices + 1][kChoiceCells] = {
    {none, none, none, none, none, none},  //
    {0, none, none, none, none, none},     //
    {0, 1, none, none, none, none},        //
    {0, 1, 2, none, none, none},           //
    {0, 1, none, 2, 3, none},              //
    {0, 1, 2, 3, logo, 4},                 //
    {0, 1, 2, 3, 4, 5},
};

bool IsCell(int cell) {
    return cell >= 1 && cell <= kChoiceCells;
}

bool IsInTopRow(int cell) {
    return cell <= kChoiceCells / 2;
}

// Whole pixels, what is left over cut off.
int Percent(int length, int percent) {
    return length * percent / 100;
}

// The columns that are cut off the right side of the window and of the row of buttons.
int CutColumns(unsigned count, int width) {
    switch (count) {
        case 1:
            return Percent(width, 67);
        case 2:
            return Percent(width, 34);
        default:
            return 0;
    }
}

int KeptColumns(unsigned count, int width) {
    switch (count) {
        case 1:
            return Percent(width, 34);
        case 2:
            return Percent(width, 67);
        default:
            return width;
    }
}

ChoiceArrangement ArrangeOneRow(unsigned count, const PixelRect& window, const PixelRect& ok,
                                const PixelRect& cancel, const PixelRect& replace) {
    const int width = window.right - window.left;
    const int half = (window.bottom - window.top) / 2;
    const int cut = CutColumns(count, width);
    const auto yOf = [&](const PixelRect& button) { return button.top - half - window.top + 2; };
    const auto positionOf = [&](const PixelRect& button) {
        return PixelPoint{button.left - cut - window.left, yOf(button)};
    };
    // Deliberate: the horizontal position of Replace is its screen position; the window's is not subtracted.
    return {KeptColumns(count, width), half + 28, positionOf(ok), positionOf(cancel),
            PixelPoint{replace.left, yOf(replace)}};
}

ChoiceArrangement ArrangeTwoByTwo(const PixelRect& window, const PixelRect& ok, const PixelRect& cancel) {
    const int third = (window.right - window.left) / 3;
    // Deliberate: Cancel is at the height of OK, whatever its own was.
    const int y = ok.top - window.top - 25;
    return {third * 2,
            window.bottom - window.top,
            {ok.left - third - window.left, y},
            {cancel.left - third - window.left, y},
            std::nullopt};
}

}  // namespace

int GetCellContent(unsigned count, int cell) {
    return count > kMaxChoices || !IsCell(cell) ? kCellEmpty : kContents[count][cell - 1];
}

bool IsChoiceCellSelectable(unsigned count, int cell) {
    if (!IsCell(cell)) {
        return false;
    }
    switch (count) {
        case 1:
        case 2:
        case 3:
            return IsInTopRow(cell);
        case 4:
        case 5:
            return GetCellContent(count, cell) >= 0;
        default:
            return true;
    }
}

bool IsChoiceCellTypeable(unsigned count, int cell) {
    return GetCellContent(count, cell) >= 0;
}

int GetChoiceOfCell(unsigned count, int cell, int previous) {
    // A quirk that is kept: with a count that the dialog does not show, each selection steps back by one.
    if (count == 0 || count > kMaxChoices) {
        return previous - 1;
    }
    const int content = GetCellContent(count, cell);
    // A cell of the top row that shows nothing means the choice that it would show.
    return content >= 0 ? content : cell - 1;
}

bool HasChoiceFrame(unsigned count, int cell) {
    // With one or two choices every cell gets one; those that cannot be selected are outside the window
    // or in its lowest part.
    return count == 1 || count == 2 ? IsCell(cell) : IsChoiceCellSelectable(count, cell);
}

PixelRect GetFrameOutline(const PixelRect& client) {
    return {client.left - 2, client.top - 2, client.right + 1, client.bottom + 1};
}

std::optional<ChoiceArrangement> ArrangeChoiceWindow(unsigned count, const PixelRect& window,
                                                     const PixelRect& ok, const PixelRect& cancel,
                                                     const PixelRect& replace) {
    switch (count) {
        case 1:
        case 2:
        case 3:
            return ArrangeOneRow(count, window, ok, cancel, replace);
        case 4:
            return ArrangeTwoByTwo(window, ok, cancel);
        default:
            return std::nullopt;
    }
}

}  // namespace tavrin::imagedlg
