// Ends DevHost with a line that names the module and the place when the plug-in or DevHost itself crashes.
#pragma once

#include <windows.h>

// From here on a fault in DevHost, in its libraries and in the plug-in ends the process with kExitCrashed.
void InstallCrashReport();

// The plug-in whose faults are watched; null when there is none.
void WatchPlugIn(HMODULE plugIn);

// What a C++ exception that reaches the host ends in. `request` is the one that let it out.
[[noreturn]] void EndOverException(unsigned request);
