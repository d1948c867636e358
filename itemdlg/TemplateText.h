// What the lines of an item's files mean: the working file that the item dialog is filled from and the
// template file that keeps its defaults, which share one syntax.
//
//   index 0    free text
//   index 1    the title, perhaps as a placeholder: <<2001>>
//   VAR        opens a parameter block (see CBlockTracker)
//   $3 = "Leaves: <<1503>>"I 2
//              in a block a parameter: number, label, type letter, value; blanks are allowed around the "="
//   END_VAR    closes the block
//
// Any other line means nothing and is kept. A placeholder, two less-than signs, a number and two greater-than
// signs, means a text of the resource module, so that labels can be translated without touching the
// files.
//
// A line is one text without its line end. It may hold null characters: the patterns see the text before
// the first one, while a line that is written back unchanged keeps all of it. Running out of memory shows as
// std::bad_alloc.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "itemdlg/ParamRecord.h"

namespace tavrin::itemdlg {

// Gives the text with a number in the resource module; empty when there is none. Called with numbers from
// 1 to 65535 only.
using TextLookup = std::function<std::wstring(unsigned id)>;

// The four parts of a parameter line as they are written.
struct ParameterLine {
    std::wstring number;  // digits, perhaps none
    std::wstring label;
    wchar_t typeLetter = L'\0';  // one of I, D, R, i, d, r
    std::wstring value;          // all after the type letter, blanks included
};

// The parts of a line if it has the form of a parameter line. Its label ends at the last quote that is
// directly before a type letter, so that a label may hold quotes. Small type letters have the form as well,
// though they are no valid types: ReadParameter gives them type 'U'. Does not look at blocks.
std::optional<ParameterLine> ParseParameterLine(const std::wstring& line);

// The same parts as views into the line, for callers that do not keep them.
struct ParameterParts {
    std::wstring_view number;
    std::wstring_view label;
    wchar_t typeLetter = L'\0';
    std::wstring_view value;
};

std::optional<ParameterParts> SplitParameterLine(const std::wstring& line);

// The number in the last placeholder of a text; 0 when there is none, when it holds no digits or when the
// number is 0, which all mean that the text has no placeholder. Beyond the range of int it is the largest
// int.
int PlaceholderNumber(const std::wstring& text);

// Gives the number of a text's placeholder, 0 when it has none: PlaceholderNumber, or a caller's own rule.
using PlaceholderLookup = std::function<int(const std::wstring& text)>;

// The highest number that a text can have.
constexpr int kHighestTextNumber = 0xFFFF;

// The text with that number. A number that cannot name a text, above 65535 or below 1, gives an empty text:
// the lookup is not called, since the system would truncate the number to 16 bits and find a wrong text.
std::wstring ResourceText(int number, const TextLookup& lookup);

// The title that a line means: the text that its placeholder names, instead of the whole line, or the
// line itself.
std::wstring TitleText(const std::wstring& line, const TextLookup& lookup,
                       const PlaceholderLookup& placeholder = PlaceholderNumber);

// The parts of a label around its placeholder, as views into it, to put the label together again: the text
// before the first "<<" (nothing when there is none), and the last (length - position of the first ">>" - 2)
// characters. Without ">>" that position counts as -1, so that the suffix is the label without its first
// character: the files are meant to use a placeholder in every label.
std::wstring_view LabelPrefix(std::wstring_view label);
std::wstring_view LabelSuffix(std::wstring_view label);

// Removes the read-only mark, a "%" at the end of a label; false when there is none.
bool TakeReadOnlyMark(std::wstring& label);

// A parameter as it enters the grid.
struct ParameterRow {
    ParamRecord record;
    bool editable = true;
};

// The mode in which the read-only mark makes a row read-only; in any other it is only removed.
constexpr int kReadOnlyMode = 1;

// Fills a new row with what a line inside a block says, of which the parts are known. Distances and reals are
// multiplied by the scale. Left to the caller: the warning for a record of type 'U', which gets no row, and
// the row in the grid with its customItem and itemId.
void FillRow(const ParameterParts& parameter, const std::wstring& line, std::int32_t lineIndex, double scale,
             int mode, const TextLookup& lookup, ParameterRow& row,
             const PlaceholderLookup& placeholder = PlaceholderNumber);

// The same from the line alone; nothing when it is no parameter.
std::optional<ParameterRow> ReadParameter(const std::wstring& line, std::int32_t lineIndex, double scale,
                                          int mode, const TextLookup& lookup);

}  // namespace tavrin::itemdlg
