// The LISP functions of the module: one row each, in the order of their function codes.
#pragma once

#include <span>

namespace tavrin::host {

struct CommandRow {
    const wchar_t* name;  // of the LISP function
    int (*run)();         // reads the arguments, shows the dialog, sets the result; see Commands.h
};

// A row's position is the code under which the host knows the function.
std::span<const CommandRow> CommandTable();

// Register the functions with the host, or unregister them; each stops early only when the host returns 0.
void RegisterCommands();
void UnregisterCommands();

// Runs the function that LISP called. A code that no row has is reported through sds_fail.
void InvokeCommand();

}  // namespace tavrin::host
