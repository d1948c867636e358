// Making lines.
#include "benchmarks/MatcherCorpus.h"

#include <random>

namespace tavrin::benchmarks {

namespace {

// The standard fixes the numbers of the engine, not those of its distributions.
class CDice {
public:
    unsigned Below(unsigned limit) { return static_cast<unsigned>(m_engine() % limit); }

private:
    std::mt19937 m_engine{20240229};
};

const wchar_t* const kWords[] = {L"Hinged",   L"door",  L"width", L"of",    L"the",       L"LEAF", L"height",
                                 L"Türblatt", L"Größe", L"à",     L"frame", L"(mm)",      L"left", L"100%",
                                 L"stop\"",   L"<",     L"<<x>>", L"D",     L"\"inner\"", L">>"};

std::wstring Words(CDice& dice, unsigned count) {
    std::wstring text;
    for (unsigned word = 0; word < count; ++word) {
        text += (word == 0 ? L"" : L" ");
        text += kWords[dice.Below(std::size(kWords))];
    }
    return text;
}

std::wstring Placeholder(CDice& dice) {
    return L"<<" + std::to_wstring(1000 + dice.Below(2000)) + L">>";
}

std::wstring Parameter(CDice& dice) {
    const wchar_t* const equals[] = {L" = ", L"=", L"  =   ", L" =", L" ="};
    const wchar_t letters[] = L"DDDIIRdir";
    std::wstring label = dice.Below(10) < 8 ? Placeholder(dice) : Words(dice, 1 + dice.Below(5));
    if (dice.Below(4) == 0) {
        label = Words(dice, 1 + dice.Below(3)) + L": " + label;
    }
    if (dice.Below(5) == 0) {
        label += L'%';
    }
    return L'$' + std::to_wstring(1 + dice.Below(999)) + equals[dice.Below(std::size(equals))] + L'"' +
           label + L'"' + letters[dice.Below(9)] + L' ' + std::to_wstring(dice.Below(100000)) +
           (dice.Below(3) == 0 ? L".25" : L"");
}

// Almost a parameter line, each in its own way.
std::wstring NearMiss(CDice& dice) {
    std::wstring line = Parameter(dice);
    switch (dice.Below(5)) {
        case 0:
            return L' ' + line;
        case 1:
            return line.substr(0, line.find_last_of(L'"')) + L"'D 1";
        case 2:
            return L'#' + line.substr(1);
        case 3:
            return line.substr(0, line.find(L'=')) + L": " + line;
        default:
            return line.substr(0, line.find_last_of(L'"') + 1) + L" D 5";
    }
}

std::wstring Repeated(CDice& dice, unsigned length) {
    const wchar_t characters[] = L"\"\"< >$=7D%";
    return std::wstring(length, characters[dice.Below(10)]);
}

std::wstring MixedLine(CDice& dice) {
    const unsigned kind = dice.Below(100);
    if (kind < 55) {
        return Parameter(dice);
    }
    if (kind < 65) {
        return NearMiss(dice);
    }
    if (kind < 72) {
        return dice.Below(2) == 0 ? Placeholder(dice) : Words(dice, 2) + L' ' + Placeholder(dice);
    }
    if (kind < 76) {
        return dice.Below(2) == 0 ? L"VAR" : L"END_VAR";
    }
    if (kind < 80) {
        return L'#' + std::to_wstring(dice.Below(99)) + L" = " + std::to_wstring(dice.Below(9999));
    }
    if (kind < 82) {
        return std::wstring();
    }
    if (kind < 87) {
        return Repeated(dice, 1 + dice.Below(120));
    }
    if (kind < 89) {
        return L"$7 = \"" + Repeated(dice, 50 + dice.Below(300)) + L"\"D 12";
    }
    if (kind < 91) {
        return Words(dice, 100 + dice.Below(200));
    }
    return Words(dice, 1 + dice.Below(15));
}

}  // namespace

std::vector<std::wstring> MixedLines() {
    constexpr std::size_t kCount = 1000;
    CDice dice;
    std::vector<std::wstring> lines;
    while (lines.size() < kCount) {
        lines.push_back(MixedLine(dice));
    }
    return lines;
}

const std::vector<LineKind>& GrowingLines() {
    static const std::vector<LineKind> kinds = {
        {"a long label", L"$1 = \"<<1501>>\"D", L" leaf width"},
        {"a note", L"", L"measured in the opening, "},
        {"quotes", L"$1=\"", L"\""},
        {"quotes and letters", L"$1=\"", L"\"x\"D"},
        {"blanks", L"$1", L" "},
        {"digits", L"$", L"1"},
        {"less-than signs", L"", L"<"},
        {"unclosed placeholders", L"", L"<<1"},
        {"placeholders closed once", L"", L"<<12>"},
    };
    return kinds;
}

std::wstring LineOf(const LineKind& kind, std::size_t length) {
    std::wstring line = kind.head;
    while (line.size() < length) {
        line += kind.piece;
    }
    line.resize(length);
    return line;
}

}  // namespace tavrin::benchmarks
