// One parameter of an item, as its line in the working file and its row in the grid describe it.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace tavrin::propgrid {
class ICustomItem;
}

namespace tavrin::itemdlg {

struct ParamRecord {
    static constexpr std::uint32_t kNoItem = 0xFFFFFFFF;

    std::wstring number;          // the digits after the dollar sign as written, perhaps none
    std::int32_t lineIndex = 0;   // the line in the file, counted from 0
    std::wstring label;           // as shown: placeholder replaced, read-only mark removed
    std::wstring labelPrefix;     // the text around the placeholder in the file's label; the value writer
    std::wstring labelSuffix;     // puts the label together from these two again
    std::int32_t resourceId = 0;  // the line's placeholder number; 0 for a label without placeholder
    double realValue = 0.0;       // D and R: as shown in the grid, which is scaled; 0 for I
    std::int32_t intValue = 0;    // I: as shown in the grid, never scaled; 0 for D and R
    std::int32_t type = 0;        // 'I' whole number, 'D' distance, 'R' real, 'U' invalid type letter
    // D: the row's distance item, which the record does not own.
    propgrid::ICustomItem* customItem = nullptr;
    std::uint32_t itemId = kNoItem;  // the row in the grid; none for U and for a row that was refused
};

// All parameters of a file by their line index.
using ParamRecordMap = std::map<std::int32_t, ParamRecord>;

}  // namespace tavrin::itemdlg
