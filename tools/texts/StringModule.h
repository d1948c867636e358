// The string tables of a compiled module: a DLL or EXE file, 32 or 64 bit, for any processor.
// StringModuleWriter.h writes such modules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::tools {

struct ModuleText {
    unsigned number = 0;
    std::wstring text;  // UTF-16 units
    unsigned languageId = 0;
    std::string language;  // its name
};

// Whether the bytes begin like a Windows program file.
bool LooksLikeModule(std::string_view bytes);

// Reads all texts of a module. Empty texts count as missing. `name` is the file's name in messages. Throws
// CToolError when the bytes are not a module or its resources are damaged. Whatever the bytes are, nothing
// beyond them is read, and the run time is at most proportional to their number times that of the sections.
std::vector<ModuleText> ReadStringModule(const std::string& name, std::string_view bytes);

}  // namespace tavrin::tools
