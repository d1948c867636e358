// The string tables of a compiled module: a DLL or EXE file, 32 or 64 bit, whatever machine it is for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct SModuleText {
    unsigned number = 0;
    std::wstring text;  // UTF-16 units
    std::string language;
};

// Whether the bytes may be a module's: they begin as those of every program file of the system do.
bool LooksLikeModule(std::string_view bytes);

// Reads all texts of a module. An empty text is the same as none there. `name` stands for the file in
// messages. Throws CToolError when the bytes are no module or its resources are damaged; nothing beyond the
// bytes is read, and the work is bounded by their number whatever they hold.
std::vector<SModuleText> ReadStringModule(const std::string& name, std::string_view bytes);
