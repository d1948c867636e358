// Files and their names. Names are UTF-8 with slashes inside the program.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace tavrin::tools {

// An error for the user: one line in UTF-8, without a full stop, that names the cause.
class CToolError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::filesystem::path PathOf(const std::string& name);
std::string NameOf(const std::filesystem::path& path);

// All bytes of a file. Throws CToolError when it cannot be read.
std::string ReadBytes(const std::string& name);

// Replaces the file's content atomically: writes a temporary file beside it and renames that. Throws
// CToolError when it fails; then the file is unchanged.
void WriteBytes(const std::string& name, const std::string& bytes);

}  // namespace tavrin::tools
