// The choice dialog without its window: what its six cells show, which of them can be selected, which get
// a frame, and how large the window is, all depending on the number of choices.
//
// Cells are numbered from 1, row by row (1 2 3 above 4 5 6); choices are numbered from 0. Rectangles and
// points are in pixels.
#pragma once

#include <optional>

namespace tavrin::imagedlg {

inline constexpr int kChoiceCells = 6;
// A dialog with more choices, or with none, closes before it is shown.
inline constexpr unsigned kMaxChoices = 6;

// What a cell shows is the index of a choice, or one of these.
inline constexpr int kCellEmpty = -1;
inline constexpr int kCellLogo = -2;

// The content of a cell; kCellEmpty for every cell when the count is 0 or above kMaxChoices.
int GetCellContent(unsigned count, int cell);

// Whether a click selects the cell. With up to three choices that is the whole top row, even where it
// shows nothing: the window is narrowed so that those cells are outside it.
bool IsChoiceCellSelectable(unsigned count, int cell);

// Whether typing the cell's number selects it: only if the cell shows a choice.
bool IsChoiceCellTypeable(unsigned count, int cell);

// The choice that selecting the (selectable) cell means; `previous` is the one selected before.
int GetChoiceOfCell(unsigned count, int cell, int previous);

// Whether the dialog paints a frame around the cell, black when it is selected and white otherwise.
bool HasChoiceFrame(unsigned count, int cell);

struct PixelPoint {
    int x, y;
    bool operator==(const PixelPoint&) const = default;
};

// Right and bottom are exclusive.
struct PixelRect {
    int left, top, right, bottom;
    bool operator==(const PixelRect&) const = default;
};

// The corners of the outline around a cell whose client area is `client`, right and bottom included. Drawn
// three pixels wide it is wholly outside the cell.
PixelRect GetFrameOutline(const PixelRect& client);

// The window's new size, and the positions of its buttons in its client area; a button keeps its size.
struct ChoiceArrangement {
    int width, height;
    PixelPoint ok, cancel;
    std::optional<PixelPoint> replace;  // nothing: it stays where it is
    bool operator==(const ChoiceArrangement&) const = default;
};

// One to three choices keep one row of one to three columns; four keep both rows and two columns. Nothing
// for all other counts: the window stays as its resource has it. The rectangles are those of the window
// and of the buttons in screen coordinates.
std::optional<ChoiceArrangement> ArrangeChoiceWindow(unsigned count, const PixelRect& window,
                                                     const PixelRect& ok, const PixelRect& cancel,
                                                     const PixelRect& replace);

}  // namespace tavrin::imagedlg
