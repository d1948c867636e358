#include "Files.h"

#include <fstream>

std::filesystem::path PathOf(const std::string& name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string NameOf(const std::filesystem::path& path) {
    const std::u8string name = path.generic_u8string();
    return std::string(name.begin(), name.end());
}

std::string ReadBytes(const std::string& name) {
    constexpr std::size_t kChunk = 1 << 18;
    std::ifstream file(PathOf(name), std::ios::binary);
    if (!file) {
        throw CToolError(name + ": the file cannot be opened");
    }
    std::string bytes;
    std::size_t filled = 0;
    do {
        bytes.resize(filled + kChunk);
        file.read(bytes.data() + filled, kChunk);
        filled += static_cast<std::size_t>(file.gcount());
    } while (file);
    bytes.resize(filled);
    if (file.bad()) {
        throw CToolError(name + ": the file cannot be read");
    }
    return bytes;
}

void WriteBytes(const std::string& name, const std::string& bytes) {
    std::ofstream file(PathOf(name), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw CToolError(name + ": the file cannot be written");
    }
}
