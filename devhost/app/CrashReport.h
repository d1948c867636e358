// When the plug-in or DevHost itself crashes, ends the process with a line that names module and address.
#pragma once

#include <windows.h>

namespace devhost {

// From now on a fault in DevHost, in its libraries or in the plug-in ends the process with kExitCrashed.
void InstallCrashReport();

// The plug-in whose faults are watched; null when there is none.
void WatchPlugIn(HMODULE plugIn);

// Reports a C++ exception that a plug-in's request let through to the host, and ends the process.
[[noreturn]] void ExitOnException(unsigned request);

}  // namespace devhost
