// Functions on texts. Positions count from 1, in UTF-16 code units.
#include <algorithm>

#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "lisp/LispError.h"

namespace tavrin::lisp {

namespace {

// Joining a text to itself in a loop would otherwise exhaust the memory quickly.
constexpr std::size_t kMaxLength = 4'000'000;

LispResult Join(const CArguments& arguments) {
    std::wstring text;
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        text += arguments.Text(i);
        if (text.size() > kMaxLength) {
            arguments.Fail(L"the string would be longer than " + std::to_wstring(kMaxLength) +
                           L" characters");
        }
    }
    arguments.Evaluator().Step(text.size() / 16);
    return CValue::String(std::move(text));
}

// The total length of all texts.
LispResult Length(const CArguments& arguments) {
    std::int64_t length = 0;
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        length += static_cast<std::int64_t>(arguments.Text(i).size());
    }
    if (length > INT32_MAX) {
        arguments.Fail(L"the length does not fit in 32 bits");
    }
    return CValue::Integer(static_cast<std::int32_t>(length));
}

LispResult Part(const CArguments& arguments) {
    const std::wstring& text = arguments.Text(0);
    if (arguments.Integer(1) < 1) {
        arguments.Refuse(1, L"a position of 1 or more");
    }
    if (arguments.Has(2) && arguments.Integer(2) < 0) {
        arguments.Refuse(2, L"a length of 0 or more");
    }
    const std::size_t start = static_cast<std::size_t>(arguments.Integer(1)) - 1;
    const std::size_t length =
        arguments.Has(2) ? static_cast<std::size_t>(arguments.Integer(2)) : text.size();
    return CValue::String(start < text.size() ? text.substr(start, length) : L"");
}

// Only the letters of ASCII and Latin-1, so that the result does not depend on the locale.
wchar_t ConvertCase(wchar_t c, bool toUpper) {
    constexpr wchar_t kDistance = 0x20;
    const wchar_t capital = toUpper ? static_cast<wchar_t>(c - kDistance) : c;
    const bool letter =
        (capital >= L'A' && capital <= L'Z') || (capital >= 0xC0 && capital <= 0xDE && capital != 0xD7);
    return !letter ? c : toUpper ? capital : static_cast<wchar_t>(c + kDistance);
}

// To uppercase, or to lowercase when the second argument is not nil.
LispResult ChangeCase(const CArguments& arguments) {
    std::wstring text = arguments.Text(0);
    const bool toUpper = !arguments.Has(1) || arguments[1].IsNil();
    for (wchar_t& c : text) {
        c = ConvertCase(c, toUpper);
    }
    return CValue::String(std::move(text));
}

LispResult Code(const CArguments& arguments) {
    if (arguments.Text(0).empty()) {
        arguments.Refuse(0, L"a string of at least one character");
    }
    return CValue::Integer(static_cast<std::int32_t>(arguments.Text(0)[0]));
}

LispResult Character(const CArguments& arguments) {
    const std::int32_t code = arguments.Integer(0);
    if (code < 1 || code > 0xFFFF) {
        arguments.Refuse(0, L"a code from 1 to 65535");
    }
    return CValue::String(std::wstring(1, static_cast<wchar_t>(code)));
}

constexpr Builtin kFunctions[] = {
    {L"STRCAT", 0, kAnyCount, Join}, {L"STRLEN", 0, kAnyCount, Length},
    {L"SUBSTR", 2, 3, Part},         {L"STRCASE", 1, 2, ChangeCase},
    {L"ASCII", 1, 1, Code},          {L"CHR", 1, 1, Character},
};

}  // namespace

std::span<const Builtin> TextFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
