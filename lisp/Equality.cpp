#include "lisp/Equality.h"

#include <cmath>
#include <utility>
#include <vector>

#include "lisp/Arguments.h"

namespace tavrin::lisp {

namespace {

bool AreEqualAtoms(const CValue& a, const CValue& b, double tolerance) {
    if (IsNumber(a) && IsNumber(b)) {
        return ToReal(a) == ToReal(b) || std::fabs(ToReal(a) - ToReal(b)) <= tolerance;
    }
    if (a.Type() == VT_STRING && b.Type() == VT_STRING) {
        return a.AsString() == b.AsString();
    }
    return a.IsSameAs(b);
}

}  // namespace

// Without recursion, since lists nest as deep as memory allows.
bool IsEqual(CEvaluator& evaluator, const CValue& a, const CValue& b, double tolerance) {
    std::vector<std::pair<const CValue*, const CValue*>> pending = {{&a, &b}};
    while (!pending.empty()) {
        const auto [left, right] = pending.back();
        pending.pop_back();
        evaluator.Step();
        if (left->Type() == VT_PAIR && right->Type() == VT_PAIR) {
            if (left->IsSameAs(*right)) {
                continue;
            }
            pending.emplace_back(&left->Cdr(), &right->Cdr());
            pending.emplace_back(&left->Car(), &right->Car());
        } else if (!AreEqualAtoms(*left, *right, tolerance)) {
            return false;
        }
    }
    return true;
}

}  // namespace tavrin::lisp
