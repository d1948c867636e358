#include "tools/rules/PlaceholderRules.h"

#include <algorithm>

#include "tools/rules/Characters.h"

namespace tavrin::tools {

namespace {

constexpr Rule kPlaceholderZero = {"placeholder-zero", SV_ERROR,
                                   "a placeholder without a number, or with the number 0",
                                   "The number 0 means that there is no placeholder: the characters are "
                                   "shown as they are in the file. Give\n"
                                   "the number of a text, 1 to 65535.",
                                   "$1 = \"<<0>>\"D 900\n$2 = \"<<>>\"D 2100"};

constexpr Rule kPlaceholderTooLarge = {
    "placeholder-too-large", SV_ERROR, "a placeholder's number is above 65535",
    "The highest number of a text is 65535. For a larger number the placeholder is empty.",
    "$1 = \"<<71501>>\"D 900"};

constexpr Rule kPlaceholderBroken = {
    "placeholder-broken", SV_ERROR, "something that is almost a placeholder",
    "A placeholder is two less-than signs, digits and two greater-than signs, without blanks: <<1501>>.\n"
    "Anything else is shown as it is in the file.",
    "$1 = \"<< 1501 >>\"D 900\n$2 = \"<<1502>\"D 2100\n$3 = \"<1503>\"D 125"};

constexpr const Rule* kRules[] = {&kPlaceholderZero, &kPlaceholderTooLarge, &kPlaceholderBroken};

// Whether the text has the form of a placeholder but without a valid number: with a digit inserted, the
// reader accepts it.
bool HasFormOfPlaceholder(const std::wstring& text, std::size_t opening) {
    return itemdlg::PlaceholderNumber(std::wstring(text).insert(opening + 2, L"1")) != 0;
}

}  // namespace

RuleList PlaceholderRules() {
    return kRules;
}

bool CheckPlaceholderForm(CFindingList& findings, const ItemLine& line, std::size_t start,
                          const std::wstring& text, const std::string& consequence) {
    const std::size_t first = text.find_first_of(L"<>");
    if (first == std::wstring::npos) {
        return false;
    }
    // The last one counts.
    const std::size_t opening = text.rfind(L"<<");
    if (opening != std::wstring::npos && HasFormOfPlaceholder(text, opening)) {
        const std::size_t end = text.find(L">>", opening) + 2;
        findings.Add(kPlaceholderZero, line, start + opening, end - opening,
                     Quoted(text.substr(opening, end - opening)) + " is not a placeholder: " + consequence);
        return true;
    }
    // "3 < 4" or "a < 3 mm, b > c" is ordinary text, two signs around a number are not.
    const std::size_t last = text.find_last_of(L"<>");
    const std::wstring_view inside =
        std::wstring_view(text).substr(first + 1, last > first ? last - first - 1 : 0);
    const bool isNumber =
        text[first] == L'<' && text[last] == L'>' && std::any_of(inside.begin(), inside.end(), IsDigit) &&
        std::all_of(inside.begin(), inside.end(),
                    [](wchar_t character) { return IsDigit(character) || IsBlank(character); });
    const bool isDouble = text.find(L"<<") != std::wstring::npos || text.find(L">>") != std::wstring::npos;
    if (!isDouble && !isNumber) {
        return false;
    }
    findings.Add(kPlaceholderBroken, line, start + first, last + 1 - first,
                 Quoted(text.substr(first, last + 1 - first)) + " is not a placeholder: " + consequence +
                     "; write <<N>> with only digits");
    return true;
}

void CheckPlaceholderNumber(CFindingList& findings, const ItemLine& line, std::size_t start, int number) {
    if (number <= itemdlg::kHighestTextNumber) {
        return;
    }
    const std::size_t end = line.text.find(L">>", start);
    findings.Add(kPlaceholderTooLarge, line, start, end + 2 - start,
                 "the placeholder is empty: the highest number of a text is " +
                     std::to_string(itemdlg::kHighestTextNumber));
}

}  // namespace tavrin::tools
