// tavrincheck texts: compiles string table scripts into a resource module.
#pragma once

#include <string>
#include <vector>

#include "tools/texts/StringModuleWriter.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

// Writes the module that the arguments name. Returns the exit status 0. Throws CToolError or CUsageError for
// invalid arguments, for scripts with errors, and for files that cannot be read or written.
int RunTexts(const std::vector<std::string>& arguments);

// The bytes of a module with all texts of the table. Throws CToolError for an unknown language, a text that
// is too long for a module, and a text that two files have in the same language.
std::string ModuleOf(const CTextTable& table, EMachine machine);

// Throws CToolError when the file exists and is not a module, such as a script whose name was given by
// mistake.
void CheckModuleName(const std::string& module);

// The machine of a host for which this program itself could be.
constexpr EMachine OwnMachine() {
    return sizeof(void*) == 4 ? MC_X86 : MC_X64;
}
// Its name, as in --machine.
const char* MachineName(EMachine machine);
// The machine of that name, the value of --machine. Throws CUsageError for another one.
EMachine MachineOf(const std::string& name);

}  // namespace tavrin::tools
