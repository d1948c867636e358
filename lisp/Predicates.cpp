// Comparisons and predicates, whose result is T or nil, and TYPE.
#include "lisp/Builtins.h"
#include "lisp/Equality.h"
#include "lisp/Evaluator.h"

namespace tavrin::lisp {

namespace {

// Numbers and texts by value, everything else by identity.
bool AreEqual(CEvaluator& evaluator, const CValue& a, const CValue& b) {
    return a.Type() == VT_PAIR ? a.IsSameAs(b) : IsEqual(evaluator, a, b);
}

LispResult Equals(const CArguments& arguments) {
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        if (!AreEqual(arguments.Evaluator(), arguments[i - 1], arguments[i])) {
            return CValue();
        }
    }
    return CValue::True();
}

LispResult Differs(const CArguments& arguments) {
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        if (AreEqual(arguments.Evaluator(), arguments[i - 1], arguments[i])) {
            return CValue();
        }
    }
    return CValue::True();
}

// Whether adjacent arguments are in this order: numbers by value, texts by their characters' codes.
template <typename TOrder>
CValue InOrder(const CArguments& arguments, TOrder order) {
    bool holds = true;
    const bool texts = arguments[0].Type() == VT_STRING;
    if (!texts) {
        arguments.Number(0);  // checks its type, also where it is the only argument
    }
    // Checks the type of every argument, so it does not stop early.
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        if (texts) {
            holds = order(arguments.Text(i - 1).compare(arguments.Text(i)), 0) && holds;
        } else {
            holds = order(arguments.Number(i - 1), arguments.Number(i)) && holds;
        }
    }
    return CValue::Truth(holds);
}

LispResult Less(const CArguments& arguments) {
    return InOrder(arguments, [](auto a, auto b) { return a < b; });
}

LispResult Greater(const CArguments& arguments) {
    return InOrder(arguments, [](auto a, auto b) { return a > b; });
}

LispResult NotGreater(const CArguments& arguments) {
    return InOrder(arguments, [](auto a, auto b) { return a <= b; });
}

LispResult NotLess(const CArguments& arguments) {
    return InOrder(arguments, [](auto a, auto b) { return a >= b; });
}

LispResult Eq(const CArguments& arguments) {
    return CValue::Truth(arguments[0].IsSameAs(arguments[1]));
}

LispResult Equal(const CArguments& arguments) {
    return CValue::Truth(IsEqual(arguments.Evaluator(), arguments[0], arguments[1],
                                 arguments.Has(2) ? arguments.Number(2) : 0));
}

LispResult IsNull(const CArguments& arguments) {
    return CValue::Truth(arguments[0].IsNil());
}

LispResult IsNumberValue(const CArguments& arguments) {
    return CValue::Truth(IsNumber(arguments[0]));
}

LispResult IsZero(const CArguments& arguments) {
    return CValue::Truth(arguments.Number(0) == 0);
}

LispResult IsNegative(const CArguments& arguments) {
    return CValue::Truth(arguments.Number(0) < 0);
}

LispResult IsAtom(const CArguments& arguments) {
    return CValue::Truth(arguments[0].Type() != VT_PAIR);
}

LispResult IsList(const CArguments& arguments) {
    return CValue::Truth(arguments[0].Type() == VT_PAIR || arguments[0].IsNil());
}

LispResult IsBound(const CArguments& arguments) {
    return CValue::Truth(!arguments.Evaluator().Variable(arguments.Symbol(0)).IsNil());
}

LispResult TypeOf(const CArguments& arguments) {
    constexpr const wchar_t* kNames[] = {L"NIL", L"INT", L"REAL", L"STR", L"SYM", L"LIST", L"SUBR", L"FILE"};
    const CValue& value = arguments[0];
    if (value.Type() == VT_FUNCTION && std::holds_alternative<Definition>(value.AsFunction()->code)) {
        return CValue::Symbol(L"USUBR");
    }
    return CValue::Symbol(kNames[value.Type()]);
}

constexpr Builtin kFunctions[] = {
    {L"=", 1, kAnyCount, Equals},
    {L"/=", 1, kAnyCount, Differs},
    {L"<", 1, kAnyCount, Less},
    {L">", 1, kAnyCount, Greater},
    {L"<=", 1, kAnyCount, NotGreater},
    {L">=", 1, kAnyCount, NotLess},
    {L"EQ", 2, 2, Eq},
    {L"EQUAL", 2, 3, Equal},
    {L"NOT", 1, 1, IsNull},
    {L"NULL", 1, 1, IsNull},
    {L"NUMBERP", 1, 1, IsNumberValue},
    {L"ZEROP", 1, 1, IsZero},
    {L"MINUSP", 1, 1, IsNegative},
    {L"ATOM", 1, 1, IsAtom},
    {L"LISTP", 1, 1, IsList},
    {L"BOUNDP", 1, 1, IsBound},
    {L"TYPE", 1, 1, TypeOf},
};

}  // namespace

std::span<const Builtin> PredicateFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
