// Finds out why the reader rejects a line that was meant as a parameter: repairs the line step by step and
// checks whether the reader accepts the result.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/rules/Finding.h"

namespace tavrin::tools {

// One repair: the error at the characters [start, start + length) of the line.
struct Repair {
    const Rule* rule = nullptr;
    std::size_t start = 0;
    std::size_t length = 0;
    std::string message;
};

// The rules that repairs are made for.
struct RepairRules {
    const Rule* leadingBlank;
    const Rule* tab;
    const Rule* number;
    const Rule* equals;
    const Rule* quote;
    const Rule* typeLetter;
};

// The repairs that turn the line into a parameter, in the order of their positions. None when the line cannot
// be repaired, or is correct. Takes linear time.
std::vector<Repair> RepairLine(const std::wstring& line, const RepairRules& rules);

}  // namespace tavrin::tools
