#include "tests/unit/pattern/PatternGenerator.h"

void ForEachText(const std::wstring& alphabet, std::size_t longest,
                 const std::function<void(const std::wstring&)>& use) {
    for (std::size_t length = 0; length <= longest; ++length) {
        std::vector<std::size_t> digits(length, 0);
        for (bool more = true; more;) {
            std::wstring text;
            for (std::size_t digit : digits) {
                text += alphabet[digit];
            }
            use(text);
            more = false;
            for (std::size_t digit = length; digit > 0 && !more; --digit) {
                more = ++digits[digit - 1] < alphabet.size();
                if (!more) {
                    digits[digit - 1] = 0;
                }
            }
        }
    }
}

std::vector<std::wstring> AllTexts(const std::wstring& alphabet, std::size_t longest) {
    std::vector<std::wstring> texts;
    ForEachText(alphabet, longest, [&](const std::wstring& text) { texts.push_back(text); });
    return texts;
}

std::wstring CPatternGenerator::Pattern() {
    m_groups = 0;
    return (Below(4) == 0 ? L"^" : L"") + Sequence(3) + (Below(4) == 0 ? L"$" : L"");
}

std::wstring CPatternGenerator::Characters(std::size_t longest) {
    std::wstring text;
    for (std::size_t count = Below(longest + 1); count > 0; --count) {
        text += OneOf(L"{}()|*+?!\\01ab^$[]-.AdwqzntÀ");
    }
    return text;
}

std::wstring CPatternGenerator::Input(std::size_t longest) {
    std::wstring text;
    for (std::size_t count = Below(longest + 1); count > 0; --count) {
        text += OneOf(L"aaaabbbbcAB01\"\r\n\tàÀ÷");
    }
    return text;
}

// Not one of the library's distributions, whose results differ from one library to the next.
std::size_t CPatternGenerator::Below(std::size_t bound) {
    return m_random() % bound;
}

wchar_t CPatternGenerator::OneOf(const std::wstring& characters) {
    return characters[Below(characters.size())];
}

std::wstring CPatternGenerator::Sequence(unsigned depth) {
    std::wstring sequence;
    for (std::size_t count = Below(4); count > 0; --count) {
        sequence += Element(depth);
        while (Below(4) == 0) {
            sequence += L"|" + Element(depth);
        }
    }
    return sequence;
}

std::wstring CPatternGenerator::Element(unsigned depth) {
    static const std::wstring quantifiers[] = {L"*", L"+", L"?", L"*?", L"+?", L"??"};
    return Atom(depth) + (Below(3) == 0 ? quantifiers[Below(6)] : L"");
}

std::wstring CPatternGenerator::Atom(unsigned depth) {
    switch (Below(depth == 0 ? 6 : 10)) {
        case 0:
            return L".";
        case 1:
            return Set();
        case 2:
            return std::wstring(L"\\") + OneOf(L"abcdhnqwzDW.$\\{|");
        case 3:
            return m_groups == 0 ? L"b" : L"\\" + std::to_wstring(Below(m_groups));
        case 4:
        case 5:
            return std::wstring(1, OneOf(L"aaabbcA0à"));
        case 6:
            return L"!" + Atom(depth - 1);
        case 7:
        case 8:
            ++m_groups;
            return L"{" + Sequence(depth - 1) + L"}";
        default:
            return L"(" + Sequence(depth - 1) + L")";
    }
}

std::wstring CPatternGenerator::Set() {
    std::wstring set = Below(3) == 0 ? L"[^" : L"[";
    for (std::size_t count = 1 + Below(2); count > 0; --count) {
        switch (Below(4)) {
            case 0:
                set += L"a-c";
                break;
            case 1:
                set += std::wstring(L"\\") + OneOf(L"t]\\-");
                break;
            default:
                set += OneOf(L"abcA01À");
                break;
        }
    }
    return set + L"]";
}
