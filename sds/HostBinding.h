// Binds the functions of sds.h to the executable that the module runs in.
//
// An import library would tie the module to one file name of the host. Here the calls go through the
// same pointers that an import table would hold, filled at load from the process's own executable.
#pragma once

#include <string>

// As the system declares it for strict types.
struct HINSTANCE__;
using HMODULE = HINSTANCE__*;

// Fills every pointer from the exports of `host` (the process's executable: GetModuleHandle(nullptr)).
// Returns the names of the functions that `host` does not export, separated by line feeds; empty when
// all are there. A function that is missing must not be called.
std::wstring BindHost(HMODULE host);
