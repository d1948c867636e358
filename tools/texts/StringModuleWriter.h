// Writes a resource module that contains string tables alone: what a resource compiler and a linker make of a
// string table script. The same texts give the same bytes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::tools {

// The processor that the host's programs are for.
enum EMachine { MC_X64, MC_X86 };

struct CompiledText {
    unsigned number = 0;  // 0 to 65535
    unsigned language = 0;
    std::wstring text;  // UTF-16 units; an empty text is the same as none
};

inline constexpr std::size_t kLongestCompiledText = 0xFFFF;

// The bytes of a DLL without code. No two texts may have the same number and language, and none may be longer
// than kLongestCompiledText.
std::string StringModule(const std::vector<CompiledText>& texts, EMachine machine);

}  // namespace tavrin::tools
