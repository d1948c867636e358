// Errors with a line number.
#pragma once

#include <cstddef>
#include <string>

#include "tools/files/Files.h"

namespace tavrin::tools {

// "TavrinRes.it.rc:12: message".
inline CToolError LineError(const std::string& file, std::size_t line, const std::string& message) {
    return CToolError(file + ":" + std::to_string(line) + ": " + message);
}

}  // namespace tavrin::tools
