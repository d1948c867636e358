// The version resource of this program.
#pragma once

#include <string>

namespace devhost {

// Description and version, in two lines; empty without a version resource.
std::wstring ProgramVersion();

}  // namespace devhost
