// A line of an item's file together with what the module makes of it. Every byte is the character of the same
// number, so that places in a line, which count characters from 0, are places in bytes as well.
#pragma once

#include <cstddef>
#include <string>

#include "itemdlg/ParamRecord.h"
#include "itemdlg/TemplateText.h"

// A line that the reader takes for a parameter.
struct SParameter {
    tavrin::itemdlg::ParameterLine parts;
    tavrin::itemdlg::ParamRecord record;  // at scale 1, with "<<N>>" as the text of placeholder N
    int placeholder = 0;                  // the number of the label's placeholder; 0 when it has none
    std::size_t labelStart = 0;
    std::size_t letterStart = 0;
    std::size_t valueStart = 0;
};

enum ELineKind {
    LK_OUTSIDE,    // no part of a block
    LK_OPENING,    // opens a block
    LK_CLOSING,    // closes one
    LK_PARAMETER,  // inside a block, a parameter
    LK_IGNORED,    // inside a block, nothing
};

// The digits of a number. By way of bytes: the library prints wide characters slowly.
inline std::wstring WideNumber(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

struct SItemLine {
    std::size_t index = 0;  // from 0
    std::wstring text;      // without its end
    ELineKind kind = LK_OUTSIDE;
    const SParameter* parameter = nullptr;  // for LK_PARAMETER
};
