// An error at a line of a file of texts.
#pragma once

#include <cstddef>
#include <string>

#include "tools/files/Files.h"

// "TavrinRes.it.rc:12: message".
inline CToolError PlaceError(const std::string& file, std::size_t line, const std::string& message) {
    return CToolError(file + ":" + std::to_string(line) + ": " + message);
}
