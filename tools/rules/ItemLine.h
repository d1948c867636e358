// A line of an item's file and its meaning to the module. Every byte is the character of the same number, so
// positions in a line, which count characters from 0, are byte offsets as well.
#pragma once

#include <cstddef>
#include <string>

#include "itemdlg/ParamRecord.h"
#include "itemdlg/TemplateText.h"

namespace tavrin::tools {

// A line that the reader accepts as a parameter.
struct Parameter {
    itemdlg::ParameterLine parts;
    itemdlg::ParamRecord record;  // at scale 1, with "<<N>>" as the text of placeholder N
    int placeholder = 0;          // the number of the label's placeholder; 0 when it has none
    std::size_t labelStart = 0;
    std::size_t letterStart = 0;
    std::size_t valueStart = 0;
};

enum ELineKind {
    LK_OUTSIDE,    // not in a block
    LK_OPENING,    // opens a block
    LK_CLOSING,    // closes one
    LK_PARAMETER,  // inside a block, a parameter
    LK_IGNORED,    // inside a block, not a parameter
};

// The digits of a number. std::to_wstring is slow.
inline std::wstring WideNumber(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

struct ItemLine {
    std::size_t index = 0;  // from 0
    std::wstring text;      // without its end
    ELineKind kind = LK_OUTSIDE;
    const Parameter* parameter = nullptr;  // for LK_PARAMETER
};

}  // namespace tavrin::tools
