// The numbers that the grid and its clients know things by: ids, kinds of value, ways of editing, ways of
// display.
#pragma once

#include <cstdint>

namespace tavrin::propgrid {

// A section or an item; each kind is counted from 0.
using Id = std::uint32_t;
inline constexpr Id kNoId = 0xFFFFFFFF;

// The kinds of value. The numbers are stored by clients and stay as they are.
enum EItemType : int {
    IT_CUSTOM = 0,
    IT_STRING = 1,
    IT_TEXT = 2,  // may hold line breaks
    IT_INTEGER = 3,
    IT_DOUBLE = 4,
    IT_COMBO = 5,  // index into a list of choices
    IT_BOOLEAN = 6,
    IT_DATE = 7,
    IT_DATETIME = 8,
    IT_FILE = 9,
    IT_FOLDER = 10,
    IT_COLOR = 11,
    IT_FONT = 12,
};

// How the value of an item is edited. The numbers are what ICustomItem::GetEditMode returns.
enum EEditMode : int {
    EM_CUSTOM = 0,          // no editor: the item gets the mouse itself
    EM_INPLACE = 1,         // a text edit over the value
    EM_DROPDOWN = 2,        // a button that drops something down under the value
    EM_MODAL = 3,           // a button that opens a dialog
    EM_INPLACE_BUTTON = 4,  // a text edit, and beside it a square button
};

// A flat list has no header rows and ignores collapsed flags. Any other number displays as DM_FLAT.
enum EDisplayMode : std::uint32_t {
    DM_CATEGORIZED = 0,  // section headers, collapsed sections hide their items
    DM_SORTED = 1,       // flat, sorted by item name (code units, so B comes before a)
    DM_FLAT = 2,         // flat, in section and insertion order
};

}  // namespace tavrin::propgrid
