#include "tools/tavrincheck/Output.h"

#include <cstdio>

#include "tools/files/Files.h"

namespace tavrin::tools {

void Print(std::string_view text) {
    const bool isTaken = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!isTaken || std::fflush(stdout) != 0) {
        throw CToolError("the standard output cannot be written");
    }
}

}  // namespace tavrin::tools
