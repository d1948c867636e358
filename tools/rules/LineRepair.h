// Finds out why the reader refuses a line that was meant as a parameter: it repairs the line piece by piece
// and asks the reader whether it takes the result.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/rules/Finding.h"

// One repair: what was wrong at the characters [start, start + length) of the line.
struct SRepair {
    const SRule* rule = nullptr;
    std::size_t start = 0;
    std::size_t length = 0;
    std::string message;
};

// The rules that repairs are made for.
struct SRepairRules {
    const SRule* leadingBlank;
    const SRule* tab;
    const SRule* number;
    const SRule* equals;
    const SRule* quote;
    const SRule* typeLetter;
};

// The repairs that make a parameter of the line, in the order of their places. None when the line cannot be
// repaired, or need not be. It takes time in proportion to the line's length.
std::vector<SRepair> RepairLine(const std::wstring& line, const SRepairRules& rules);
