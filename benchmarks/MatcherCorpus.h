// The lines that the matchers are compared on. Characters are below 256, as in the files. The same on every
// machine.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::benchmarks {

// A thousand lines as template files hold them: mostly parameters, with and without placeholders, among
// titles, notes, block marks, near misses, lines full of quotes, blanks or signs, and a few long ones.
std::vector<std::wstring> MixedLines();

struct LineKind {
    std::string name;
    std::wstring head;   // once at the beginning
    std::wstring piece;  // repeated up to the wanted length
};

// Kinds of lines that can be of any length, those made to cost a matcher much among them.
const std::vector<LineKind>& GrowingLines();

// A line of exactly that many characters.
std::wstring LineOf(const LineKind& kind, std::size_t length);

}  // namespace tavrin::benchmarks
