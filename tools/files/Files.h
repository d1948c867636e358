// Files and their names. A name inside the program is UTF-8 with slashes, as the user gave it or put together
// from that.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

// What the user did wrong or must know: one line in UTF-8, without a full stop, that names the thing.
class CToolError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::filesystem::path PathOf(const std::string& name);
std::string NameOf(const std::filesystem::path& path);

// All bytes of a file. Throws CToolError when it cannot be read.
std::string ReadBytes(const std::string& name);

// Makes these bytes the file's content, all of them or none: they are written beside it and then put in its
// place. Throws CToolError when that cannot be done; the file, if there is one, is as it was.
void WriteBytes(const std::string& name, const std::string& bytes);
