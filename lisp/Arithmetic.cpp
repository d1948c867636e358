// Arithmetic. Whole numbers give whole numbers; a result that does not fit in 32 bits is an error, since a
// wrapped length or count would go unnoticed.
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>

#include "lisp/Builtins.h"
#include "lisp/LispError.h"

namespace tavrin::lisp {

namespace {

bool AllWhole(const CArguments& arguments) {
    for (const CValue& value : arguments.Values()) {
        if (value.Type() != VT_INTEGER) {
            return false;
        }
    }
    return true;
}

CValue Whole(const CArguments& arguments, std::int64_t result) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (result < Limits::min() || result > Limits::max()) {
        arguments.Fail(L"the whole number " + std::to_wstring(result) +
                       L" does not fit in 32 bits: calculate with reals, 1.0 instead of 1");
    }
    return CValue::Integer(static_cast<std::int32_t>(result));
}

CValue Real(const CArguments& arguments, double result) {
    if (!std::isfinite(result)) {
        arguments.Fail(L"the result is not a finite number");
    }
    return CValue::Real(result);
}

// Combines from left to right: in whole numbers if all arguments are whole, otherwise in reals.
template <typename TWhole, typename TReal>
CValue Combine(const CArguments& arguments, TWhole combineWhole, TReal combineReal) {
    if (AllWhole(arguments)) {
        std::int32_t result = arguments.Integer(0);
        for (std::size_t i = 1; i < arguments.Count(); ++i) {
            result = Whole(arguments, combineWhole(static_cast<std::int64_t>(result),
                                                   static_cast<std::int64_t>(arguments.Integer(i))))
                         .AsInteger();
        }
        return CValue::Integer(result);
    }
    double result = arguments.Number(0);
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        result = combineReal(result, arguments.Number(i));
    }
    return Real(arguments, result);
}

LispResult Add(const CArguments& arguments) {
    if (arguments.Count() == 0) {
        return CValue::Integer(0);
    }
    const auto add = [](auto a, auto b) { return a + b; };
    return Combine(arguments, add, add);
}

// A single argument is negated.
LispResult Subtract(const CArguments& arguments) {
    const auto subtract = [](auto a, auto b) { return a - b; };
    if (arguments.Count() != 1) {
        return Combine(arguments, subtract, subtract);
    }
    if (AllWhole(arguments)) {
        return Whole(arguments, -static_cast<std::int64_t>(arguments.Integer(0)));
    }
    return CValue::Real(-arguments.Number(0));
}

LispResult Multiply(const CArguments& arguments) {
    if (arguments.Count() == 0) {
        return CValue::Integer(1);
    }
    const auto multiply = [](auto a, auto b) { return a * b; };
    return Combine(arguments, multiply, multiply);
}

void RefuseZero(const CArguments& arguments) {
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        if (arguments.Number(i) == 0) {
            arguments.Fail(L"division by zero");
        }
    }
}

// Whole numbers give a whole number, truncated towards zero: (/ 7 2) is 3.
LispResult Divide(const CArguments& arguments) {
    RefuseZero(arguments);
    const auto divide = [](auto a, auto b) { return a / b; };
    return Combine(arguments, divide, divide);
}

LispResult Remainder(const CArguments& arguments) {
    RefuseZero(arguments);
    return Combine(
        arguments, [](std::int64_t a, std::int64_t b) { return a % b; },
        [](double a, double b) { return std::fmod(a, b); });
}

LispResult Increment(const CArguments& arguments) {
    if (AllWhole(arguments)) {
        return Whole(arguments, static_cast<std::int64_t>(arguments.Integer(0)) + 1);
    }
    return Real(arguments, arguments.Number(0) + 1);
}

LispResult Decrement(const CArguments& arguments) {
    if (AllWhole(arguments)) {
        return Whole(arguments, static_cast<std::int64_t>(arguments.Integer(0)) - 1);
    }
    return Real(arguments, arguments.Number(0) - 1);
}

LispResult Absolute(const CArguments& arguments) {
    if (AllWhole(arguments)) {
        return Whole(arguments, std::abs(static_cast<std::int64_t>(arguments.Integer(0))));
    }
    return CValue::Real(std::fabs(arguments.Number(0)));
}

LispResult Minimum(const CArguments& arguments) {
    const auto least = [](auto a, auto b) { return b < a ? b : a; };
    return Combine(arguments, least, least);
}

LispResult Maximum(const CArguments& arguments) {
    const auto most = [](auto a, auto b) { return a < b ? b : a; };
    return Combine(arguments, most, most);
}

LispResult GreatestDivisor(const CArguments& arguments) {
    return Whole(arguments, std::gcd(static_cast<std::int64_t>(arguments.Integer(0)),
                                     static_cast<std::int64_t>(arguments.Integer(1))));
}

// Combines the bits of whole numbers.
template <typename TCombine>
CValue CombineBits(const CArguments& arguments, std::int32_t start, TCombine combine) {
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        start = combine(start, arguments.Integer(i));
    }
    return CValue::Integer(start);
}

LispResult BitsAnd(const CArguments& arguments) {
    return CombineBits(arguments, -1, [](std::int32_t a, std::int32_t b) { return a & b; });
}

LispResult BitsOr(const CArguments& arguments) {
    return CombineBits(arguments, 0, [](std::int32_t a, std::int32_t b) { return a | b; });
}

LispResult BitsNot(const CArguments& arguments) {
    return CValue::Integer(~arguments.Integer(0));
}

constexpr Builtin kFunctions[] = {
    {L"+", 0, kAnyCount, Add},         {L"-", 1, kAnyCount, Subtract},  {L"*", 0, kAnyCount, Multiply},
    {L"/", 1, kAnyCount, Divide},      {L"1+", 1, 1, Increment},        {L"1-", 1, 1, Decrement},
    {L"REM", 2, kAnyCount, Remainder}, {L"ABS", 1, 1, Absolute},        {L"MIN", 1, kAnyCount, Minimum},
    {L"MAX", 1, kAnyCount, Maximum},   {L"GCD", 2, 2, GreatestDivisor}, {L"LOGAND", 0, kAnyCount, BitsAnd},
    {L"LOGIOR", 0, kAnyCount, BitsOr}, {L"~", 1, 1, BitsNot},
};

}  // namespace

std::span<const Builtin> ArithmeticFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
