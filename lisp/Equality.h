// When two values are equal.
#pragma once

#include "lisp/Evaluator.h"

namespace tavrin::lisp {

// Structural equality: equal numbers whatever their type, texts of the same characters, lists of equal
// elements; everything else must be identical. Numbers may differ by `tolerance`. Counts as steps of the
// evaluation, since lists that share their parts take long to compare.
bool IsEqual(CEvaluator& evaluator, const CValue& a, const CValue& b, double tolerance = 0);

}  // namespace tavrin::lisp
