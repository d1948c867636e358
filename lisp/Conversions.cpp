// Conversions between texts and values: numbers, lengths and angles in the units of the drawing, LISP
// notation.
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>

#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"
#include "lisp/Reader.h"
#include "units/LinearUnits.h"

namespace tavrin::lisp {

namespace {

// The text without leading blanks, up to the first character that cannot belong to a number.
std::string NumberStart(const std::wstring& text) {
    std::string start;
    for (const wchar_t c : text) {
        const bool blank = c == L' ' || c == L'\t';
        if (start.empty() && blank) {
            continue;
        }
        if (c > 0x7F || blank) {
            break;
        }
        start += static_cast<char>(c);
    }
    if (!start.empty() && start[0] == '+') {
        start.erase(0, 1);
    }
    return start;
}

// The leading number of the text; 0 without one.
LispResult TextToInteger(const CArguments& arguments) {
    const std::string digits = NumberStart(arguments.Text(0));
    std::int32_t number = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec ==
        std::errc::result_out_of_range) {
        arguments.Fail(L"the number in " + Excerpt(arguments[0]) + L" does not fit in 32 bits");
    }
    return CValue::Integer(number);
}

LispResult TextToReal(const CArguments& arguments) {
    const std::string digits = NumberStart(arguments.Text(0));
    double number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (read.ec == std::errc::result_out_of_range) {
        arguments.Fail(L"the number in " + Excerpt(arguments[0]) + L" is too large or too small for a real");
    }
    // from_chars accepts names such as "inf", LISP does not.
    return CValue::Real(std::isfinite(number) ? number : 0);
}

LispResult IntegerToText(const CArguments& arguments) {
    return CValue::String(std::to_wstring(arguments.Integer(0)));
}

// An optional argument, a whole number from 0 on, with the system variable's value as its default.
int Setting(const CArguments& arguments, std::size_t index, const wchar_t* variable, int otherwise) {
    if (arguments.Has(index)) {
        if (arguments.Integer(index) < 0) {
            arguments.Refuse(index, L"a whole number from 0 on");
        }
        return arguments.Integer(index);
    }
    const CValue value = arguments.Evaluator().Host().GetVariable(variable);
    return value.Type() == VT_INTEGER ? value.AsInteger() : otherwise;
}

// (rtos LENGTH [UNITS [PRECISION]]), by default as LUNITS and LUPREC say.
LispResult LengthToText(const CArguments& arguments) {
    const double length = arguments.Number(0);
    const int units = Setting(arguments, 1, L"LUNITS", units::LU_DECIMAL);
    if (units < units::LU_SCIENTIFIC || units > units::LU_FRACTIONAL) {
        arguments.Refuse(1, L"units from 1 to 5");
    }
    const auto text = units::FormatLinear(length, units, Setting(arguments, 2, L"LUPREC", 4));
    if (!text) {
        arguments.Refuse(0, L"a finite number");
    }
    return CValue::String(*text);
}

// Reads every format, whatever units are given. nil when the text is not a length.
LispResult TextToLength(const CArguments& arguments) {
    if (arguments.Has(1)) {
        arguments.Integer(1);
    }
    const auto length = units::ParseLinear(arguments.Text(0));
    return length ? CValue::Real(*length) : CValue();
}

// An angle in degrees as 12d30'15.5", carried from the rounded seconds upwards.
std::wstring DegreesMinutesSeconds(double degrees, int precision) {
    const double scale = std::pow(10, precision);
    const double seconds = std::nearbyint(degrees * 3600 * scale) / scale;
    const double minutes = std::floor(seconds / 60);
    const auto whole = [](double number) { return std::to_wstring(static_cast<std::int64_t>(number)); };
    return whole(std::fmod(std::floor(minutes / 60), 360)) + L'd' + whole(std::fmod(minutes, 60)) + L'\'' +
           units::FormatLinear(seconds - minutes * 60, units::LU_DECIMAL, precision).value() + L'"';
}

// (angtos ANGLE [UNITS [PRECISION]]): an angle in radians as degrees (0), degrees, minutes and seconds (1),
// grads (2) or radians (3), in the full circle from 0 on.
LispResult AngleToText(const CArguments& arguments) {
    constexpr double kCircle = 2 * std::numbers::pi;
    double turn = std::fmod(arguments.Number(0), kCircle) / kCircle;
    if (!std::isfinite(turn)) {
        arguments.Refuse(0, L"a finite number");
    }
    if (turn < 0) {
        turn += 1;
    }
    const int units = Setting(arguments, 1, L"AUNITS", 0);
    const int precision = std::min(Setting(arguments, 2, L"AUPREC", 0), units::kMaxLinearPrecision);
    switch (units) {
        case 0:
            return CValue::String(units::FormatLinear(turn * 360, units::LU_DECIMAL, precision).value());
        case 1:
            return CValue::String(DegreesMinutesSeconds(turn * 360, precision));
        case 2:
            return CValue::String(units::FormatLinear(turn * 400, units::LU_DECIMAL, precision).value() +
                                  L'g');
        case 3:
            return CValue::String(units::FormatLinear(turn * kCircle, units::LU_DECIMAL, precision).value() +
                                  L'r');
        default:
            arguments.Refuse(1, L"units from 0 to 3");
    }
}

// The first expression of the text; nil when there is none.
LispResult Read(const CArguments& arguments) {
    try {
        CReader reader(arguments.Text(0));
        return reader.Read().value_or(CValue());
    } catch (const CReadError& error) {
        arguments.Fail(error.What() + L" in " + Excerpt(arguments[0]));
    }
}

constexpr Builtin kFunctions[] = {
    {L"ATOI", 1, 1, TextToInteger}, {L"ATOF", 1, 1, TextToReal},     {L"ITOA", 1, 1, IntegerToText},
    {L"RTOS", 1, 3, LengthToText},  {L"DISTOF", 1, 2, TextToLength}, {L"ANGTOS", 1, 3, AngleToText},
    {L"READ", 1, 1, Read},
};

}  // namespace

std::span<const Builtin> ConversionFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
