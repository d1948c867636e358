// Values as text in LISP notation.
#pragma once

#include <string>

#include "lisp/Value.h"

namespace tavrin::lisp {

// The text that the reader reads back as an equal value: texts in quotes with their escapes, reals with as
// many digits as needed and always with a point or an exponent, dotted pairs with their dot. Values without a
// notation cannot be read back: infinities and NaN print as inf, -inf and nan, functions and files in angle
// brackets. Throws CLispError for a text of more than 4 million characters.
std::wstring Print(const CValue& value);

// The same for display: texts, also those within lists, without quotes and escapes.
std::wstring Display(const CValue& value);

// Print, truncated for messages.
std::wstring Excerpt(const CValue& value);

}  // namespace tavrin::lisp
