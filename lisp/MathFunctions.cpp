// Roots, powers, logarithms, trigonometry (in radians), and conversions between whole numbers and reals.
#include <cmath>
#include <limits>

#include "lisp/Builtins.h"
#include "lisp/LispError.h"

namespace tavrin::lisp {

namespace {

CValue MakeFiniteReal(const CArguments& arguments, double result) {
    if (!std::isfinite(result)) {
        arguments.Fail(L"the result is not a finite number");
    }
    return CValue::Real(result);
}

LispResult Fix(const CArguments& arguments) {
    if (arguments[0].Type() == VT_INTEGER) {
        return arguments[0];
    }
    const double whole = std::trunc(arguments.Number(0));
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(whole >= Limits::min() && whole <= Limits::max())) {
        arguments.Refuse(0, L"a number that fits in 32 bits");
    }
    return CValue::Integer(static_cast<std::int32_t>(whole));
}

LispResult Float(const CArguments& arguments) {
    return CValue::Real(arguments.Number(0));
}

LispResult Sine(const CArguments& arguments) {
    return MakeFiniteReal(arguments, std::sin(arguments.Number(0)));
}

LispResult Cosine(const CArguments& arguments) {
    return MakeFiniteReal(arguments, std::cos(arguments.Number(0)));
}

// With one argument in -pi/2 to pi/2; with two the angle of (X, Y), given as Y and X, in -pi to pi.
LispResult ArcTangent(const CArguments& arguments) {
    const double y = arguments.Number(0);
    return MakeFiniteReal(arguments, arguments.Has(1) ? std::atan2(y, arguments.Number(1)) : std::atan(y));
}

LispResult SquareRoot(const CArguments& arguments) {
    if (arguments.Number(0) < 0) {
        arguments.Refuse(0, L"a number that is not negative");
    }
    return CValue::Real(std::sqrt(arguments.Number(0)));
}

LispResult Exponential(const CArguments& arguments) {
    return MakeFiniteReal(arguments, std::exp(arguments.Number(0)));
}

LispResult Logarithm(const CArguments& arguments) {
    if (arguments.Number(0) <= 0) {
        arguments.Refuse(0, L"a number above zero");
    }
    return CValue::Real(std::log(arguments.Number(0)));
}

// Whole numbers give a whole number, except with a negative exponent.
LispResult Power(const CArguments& arguments) {
    const double result = std::pow(arguments.Number(0), arguments.Number(1));
    const bool whole = arguments[0].Type() == VT_INTEGER && arguments[1].Type() == VT_INTEGER;
    if (!whole || arguments.Integer(1) < 0) {
        return MakeFiniteReal(arguments, result);
    }
    // A double holds every 32-bit integer exactly; rounding removes an error of pow.
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(result >= Limits::min() && result <= Limits::max())) {
        arguments.Fail(L"the result does not fit in 32 bits: calculate with reals, 2.0 instead of 2");
    }
    return CValue::Integer(static_cast<std::int32_t>(std::round(result)));
}

constexpr Builtin kFunctions[] = {
    {L"FIX", 1, 1, Fix},         {L"FLOAT", 1, 1, Float},     {L"SIN", 1, 1, Sine},
    {L"COS", 1, 1, Cosine},      {L"ATAN", 1, 2, ArcTangent}, {L"SQRT", 1, 1, SquareRoot},
    {L"EXP", 1, 1, Exponential}, {L"LOG", 1, 1, Logarithm},   {L"EXPT", 2, 2, Power},
};

}  // namespace

std::span<const Builtin> MathFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
