// Numbers as a person types them: the number that a text begins with, after white space; what follows is
// ignored.
#pragma once

#include <string>

namespace tavrin::propgrid {

// A decimal whole number with an optional sign; 0 for none. One that no int holds becomes the nearest that
// does.
int ReadTypedInteger(const std::wstring& text);

// A decimal number with an optional fraction and exponent; 0 for none. The decimal point is a point in every
// locale, and the locale's own one.
double ReadTypedReal(const std::wstring& text);

}  // namespace tavrin::propgrid
