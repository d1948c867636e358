// The LISP functions of the module.
#pragma once

namespace tavrin::host {

// Register the functions with the host, or unregister them; each stops early only when the host returns 0.
void RegisterCommands();
void UnregisterCommands();

// Runs the function that LISP called. A code that no row has is reported through sds_fail.
void InvokeCommand();

}  // namespace tavrin::host
