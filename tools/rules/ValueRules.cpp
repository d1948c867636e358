#include "tools/rules/ValueRules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "itemdlg/NumberText.h"

namespace tavrin::tools {

namespace {

constexpr Rule kTypeSmallLetter = {"type-small-letter", SV_ERROR, "the type letter is lower case",
                                   "Only the capitals I, D and R are types. For a lower case letter the "
                                   "dialog shows a warning each time it\n"
                                   "opens, and the parameter gets no row.",
                                   "$1 = \"<<1501>>\"d 900"};

constexpr Rule kValueMissing = {"value-missing", SV_WARNING, "a parameter without a value",
                                "A missing value counts as 0.", "$1 = \"<<1501>>\"D"};

constexpr Rule kValueNoNumber = {
    "value-no-number", SV_ERROR, "a value that is not a number",
    "A text that does not begin with a number counts as 0. inf, nan and ,5 are not numbers here.",
    "$1 = \"<<1501>>\"D wide"};

constexpr Rule kValueComma = {"value-comma", SV_ERROR, "a value with a decimal comma",
                              "The decimal separator is always the point: of 0,9 the module reads the 0.",
                              "$10 = \"<<1510>>\"R 0,35"};

constexpr Rule kValueTrailingText = {"value-trailing-text", SV_ERROR, "text after a value",
                                     "Text after the number is not read, and is lost when OK rewrites the "
                                     "line. Put units into the label, and\n"
                                     "remarks on lines of their own.",
                                     "$1 = \"<<1501>>\"D 900 mm"};

constexpr Rule kValueOutOfRange = {
    "value-out-of-range", SV_ERROR, "a value out of the range of its type",
    "A whole number beyond 32 bits becomes the nearest one in range. A real number or distance beyond "
    "1.8e308\n"
    "becomes an infinity, which is written as a text that cannot be read; one too close to zero becomes 0.",
    "$7 = \"<<1507>>\"I 3000000000\n$9 = \"<<1509>>\"R 1e400"};

constexpr Rule kValueFraction = {
    "value-fraction", SV_ERROR, "a whole number with a fraction",
    "For type I the next lower whole number counts: 2.9 is 2, and -2.1 is -3. Use R for real numbers.",
    "$8 = \"<<1508>>\"I 2.9"};

constexpr Rule kValueDigitsLost = {"value-digits-lost", SV_ERROR, "a value of more than six digits",
                                   "OK writes distances and real numbers with six significant digits to both "
                                   "files, even if the user changes\n"
                                   "nothing. The first OK drops further digits.",
                                   "$1 = \"<<1501>>\"D 1234567.891"};

constexpr const Rule* kRules[] = {&kTypeSmallLetter,   &kValueMissing,    &kValueNoNumber, &kValueComma,
                                  &kValueTrailingText, &kValueOutOfRange, &kValueFraction, &kValueDigitsLost};

constexpr std::wstring_view kBlanks = L" \t\v\f\r";

// Whether a number is zero in spite of its digits.
bool HasVanished(std::wstring_view number, double value) {
    const std::wstring_view digits = number.substr(0, number.find_first_of(L"eE"));
    return value == 0.0 && digits.find_first_of(L"123456789") != std::wstring_view::npos;
}

}  // namespace

RuleList ValueRules() {
    return kRules;
}

void CValueRules::TakeLine(const ItemLine& line) {
    if (line.parameter == nullptr) {
        return;
    }
    const Parameter& parameter = *line.parameter;
    if (parameter.record.type == 'U') {
        const wchar_t letter = parameter.parts.typeLetter;
        Findings().Add(kTypeSmallLetter, line, parameter.letterStart, 1,
                       "the type letter " + Quoted(std::wstring_view(&letter, 1)) +
                           " must be upper case: the parameter gets a warning instead of a row");
    }
    const std::wstring& value = parameter.parts.value;
    const std::size_t begin = value.find_first_not_of(kBlanks);
    if (begin == std::wstring::npos) {
        Findings().Add(kValueMissing, line, parameter.letterStart, 1, "the value is missing and counts as 0");
        return;
    }
    const itemdlg::LeadingNumber number = itemdlg::ReadLeadingNumber(value);
    if (ReportNoNumber(line, value, number.end)) {
        return;
    }
    CheckNumber(line, parameter.valueStart + begin, number.end - begin, number.value);
}

// Reports text instead of a number, or after it. True when there is no number.
bool CValueRules::ReportNoNumber(const ItemLine& line, const std::wstring& value, std::size_t numberEnd) {
    const std::size_t start = value.find_first_not_of(kBlanks, numberEnd);
    if (start == std::wstring::npos) {
        return false;
    }
    const std::size_t length = value.find_last_not_of(kBlanks) + 1 - start;
    const std::size_t position = line.parameter->valueStart + start;
    const std::wstring text = value.substr(start, length);
    const bool isComma = text.front() == L',' && text.size() > 1 && text[1] >= L'0' && text[1] <= L'9';
    if (isComma && start == numberEnd) {
        Findings().Add(kValueComma, line, position, length,
                       Quoted(text) + " is not read: the decimal separator is the point");
    } else if (numberEnd == 0) {
        Findings().Add(kValueNoNumber, line, position, length,
                       Quoted(text) + " is not a number and counts as 0");
    } else {
        Findings().Add(kValueTrailingText, line, position, length,
                       Quoted(text) + " is not read, and is lost with the first OK");
    }
    return numberEnd == 0;
}

void CValueRules::CheckNumber(const ItemLine& line, std::size_t start, std::size_t length, double value) {
    const std::wstring_view written = std::wstring_view(line.text).substr(start, length);
    const wchar_t letter = line.parameter->parts.typeLetter;
    const auto report = [&](const Rule& rule, const std::string& message) {
        Findings().Add(rule, line, start, length, Quoted(written) + message);
    };
    if (HasVanished(written, value)) {
        report(kValueOutOfRange, " is too close to zero and becomes 0");
    } else if (letter == L'I' || letter == L'i') {  // the small one will be made a capital
        const int whole = itemdlg::FloorToInt(value);
        const std::string becomes = " becomes " + std::to_string(whole);
        if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
            report(kValueOutOfRange, becomes + ", the nearest whole number of 32 bits");
        } else if (value != whole) {
            report(kValueFraction, becomes + ", the next lower whole number");
        }
    } else if (std::isinf(value)) {
        report(kValueOutOfRange, " is too large and becomes an infinity");
    } else if (const std::wstring kept = itemdlg::GeneralText(value); itemdlg::DecimalValue(kept) != value) {
        report(kValueDigitsLost, " is " + Quoted(kept) + " after the first OK");
    }
}

}  // namespace tavrin::tools
