// The standard output of a command.
#pragma once

#include <string_view>

// Prints text, which has left the program when this comes back. Throws CToolError when it cannot be written:
// who reads a report must not take half of it for the whole.
void Print(std::string_view text);
