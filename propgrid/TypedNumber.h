// Numbers as the user types them into the property grid.
#pragma once

#include <string>

// The whole number at the start of a text, behind white space and a sign: "12abc" is 12. 0 when there is
// none; a number that is too large is the largest one, or the smallest.
int ReadTypedInteger(const std::wstring& text);

// The real number at the start of a text, as _wtof reads it: "2.5e3 m" is 2500. 0 when there is none. The
// decimal point is a point, or what the C runtime's locale has for one: numbers show with that.
double ReadTypedReal(const std::wstring& text);
