// When two values are equal.
#pragma once

#include "lisp/Evaluator.h"

// Whether both look alike: equal numbers whatever their type, texts of the same characters, lists of equal
// elements; everything else has to be the same thing. Numbers may differ by `tolerance`. Counts as steps of
// the evaluation, since lists that share their parts take long to compare.
bool IsEqual(CEvaluator& evaluator, const CValue& a, const CValue& b, double tolerance = 0);
