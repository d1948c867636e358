#include "tools/rules/NumberRules.h"

#include <algorithm>

namespace tavrin::tools {

namespace {

constexpr Rule kNumberDuplicate = {"number-duplicate", SV_ERROR, "two parameters have the same number",
                                   "Both get a row, but OK stores the value of each in the last line with "
                                   "the number, and the earlier lines\n"
                                   "keep theirs. The LISP routine finds two assignments to one number.",
                                   "$2 = \"<<1502>>\"D 2100\n$2 = \"<<1503>>\"D 125"};

constexpr Rule kNumberEmpty = {
    "number-empty", SV_WARNING, "a parameter has no number",
    "The line is a parameter with an empty number. After OK the working file contains '# = 900', which is\n"
    "useless for a LISP routine.",
    "$ = \"<<1501>>\"D 900"};

constexpr Rule kNumberLookAlike = {
    "number-look-alike", SV_WARNING, "two numbers differ only in leading zeros",
    "Numbers are compared as text: 01 and 1 are two parameters. A LISP routine that reads them as numbers\n"
    "takes them for one.",
    "$1 = \"<<1501>>\"D 900\n$01 = \"<<1502>>\"D 2100"};

constexpr const Rule* kRules[] = {&kNumberDuplicate, &kNumberEmpty, &kNumberLookAlike};

}  // namespace

RuleList NumberRules() {
    return kRules;
}

void CNumberRules::TakeLine(const ItemLine& line) {
    if (line.parameter == nullptr) {
        return;
    }
    const std::wstring& number = line.parameter->parts.number;
    if (number.empty()) {
        Findings().Add(kNumberEmpty, line, 0, 1, "this parameter has no number");
    }
    const std::size_t zeros = std::min(number.find_first_not_of(L'0'), number.size());
    const bool isZero = zeros == number.size() && zeros > 0;
    const std::wstring_view significant = std::wstring_view(number).substr(zeros - (isZero ? 1 : 0));
    const bool isPadded = significant.size() != number.size();
    const std::size_t first = (isPadded ? m_padded : m_plain).FindOrAdd(number, line.index);
    const std::size_t lookAlike = isPadded ? std::min(m_stripped.FindOrAdd(significant, line.index),
                                                      m_plain.Find(significant).value_or(line.index))
                                           : m_stripped.Find(significant).value_or(line.index);
    if (first != line.index) {
        Findings().Add(
            kNumberDuplicate, line, 0, 1 + number.size(),
            Quoted(L"$" + number) + " is the number of line " + std::to_string(first + 1) + " too");
    } else if (lookAlike != line.index) {
        Findings().Add(kNumberLookAlike, line, 1, number.size(),
                       Quoted(number) + " is another number than the one in line " +
                           std::to_string(lookAlike + 1) + ", which differs only in zeros");
    }
}

}  // namespace tavrin::tools
