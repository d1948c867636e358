// What this program says about itself in the properties of its file.
#pragma once

#include <string>

// Its description and version, in two lines; empty when the file says nothing.
std::wstring ProgramVersion();
