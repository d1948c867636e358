// Values as text in LISP notation.
#pragma once

#include <string>

#include "lisp/Value.h"

// The text that Reader.h reads back as an equal value: texts in quotes with their escapes, reals with as
// many digits as it takes and always with a point or an exponent, dotted pairs with their dot. What has no
// notation cannot be read back: infinities and NaN come out as inf, -inf and nan, functions and files in
// angle brackets. Throws CLispError for a text of more than 4 million characters.
std::wstring Print(const CValue& value);

// For people: the same, but texts, also those within lists, without quotes and escapes.
std::wstring Display(const CValue& value);

// Print, cut where it gets too long for a message.
std::wstring Excerpt(const CValue& value);
