// Makes patterns and inputs for comparisons: all texts over a small alphabet, or random ones from a seed.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

// Calls the function with every text over the alphabet of up to that length, the empty one first.
void ForEachText(const std::wstring& alphabet, std::size_t longest,
                 const std::function<void(const std::wstring&)>& use);

std::vector<std::wstring> AllTexts(const std::wstring& alphabet, std::size_t longest);

// The same seed gives the same texts on every machine.
class CPatternGenerator {
public:
    explicit CPatternGenerator(unsigned seed) : m_random(seed) {}

    // A pattern put together from the language's constructs; most of them compile.
    std::wstring Pattern();

    // Any characters that mean something in a pattern, in any order; most of them do not compile.
    std::wstring Characters(std::size_t longest);

    // A text of the few characters that the patterns speak of.
    std::wstring Input(std::size_t longest);

private:
    std::size_t Below(std::size_t bound);
    wchar_t OneOf(const std::wstring& characters);
    std::wstring Sequence(unsigned depth);
    std::wstring Element(unsigned depth);
    std::wstring Atom(unsigned depth);
    std::wstring Set();

    std::mt19937 m_random;
    std::size_t m_groups = 0;
};
