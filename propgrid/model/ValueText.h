// The texts of values: the one that the value column displays, and the one that the in-place edit opens with.
#pragma once

#include <string>

#include "propgrid/model/GridItem.h"
#include "propgrid/model/GridSettings.h"

namespace tavrin::propgrid {

// What only the system knows of texts.
class ISystemText {
public:
    // The date by a strftime format; with an empty one as the user's locale writes it, `withTime` or without.
    // A null date gives an empty text.
    virtual std::wstring GetDateText(const DateValue& date, const std::wstring& format,
                                     bool withTime) const = 0;

    // The vertical resolution that point sizes are computed for.
    virtual int GetPixelsPerInch() const = 0;

protected:
    ~ISystemText() = default;
};

// The text of the value column: the undefined text while the item is undefined, else the value as its kind
// displays it. Paths are not shortened here. Empty for a custom item, which draws itself.
//
// An Integer is formatted as by swprintf with an int, a Double with a double. The client must give a format
// for exactly that argument: nothing checks it.
std::wstring GetValueText(const GridItem& item, const GridTexts& texts, const ISystemText& system);

// The text that the in-place edit opens with: deliberately not in the item's display format, and empty for a
// number that is undefined. A custom item is asked.
std::wstring GetEditText(const GridItem& item);

// A number by a printf format for exactly one int, or one double.
std::wstring FormatNumber(const std::wstring& format, int number);
std::wstring FormatNumber(const std::wstring& format, double number);

}  // namespace tavrin::propgrid
