// Values as text in LISP notation.
#pragma once

#include <string>

#include "Value.h"

// The text that Reader.h reads back as an equal value: texts in quotes with their escapes, reals with as
// many digits as it takes and always with a point or an exponent, dotted pairs with their dot. Infinities
// and NaN, which have no notation, come out as inf, -inf and nan.
std::wstring Print(const CValue& value);
