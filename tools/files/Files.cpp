#include "tools/files/Files.h"

#include <fstream>
#include <system_error>
#include <utility>

namespace tavrin::tools {

namespace {

// An unused name in the file's folder.
std::filesystem::path UnusedName(const std::filesystem::path& path) {
    std::error_code ignored;
    for (unsigned number = 0;; ++number) {
        std::filesystem::path name = path;
        name += ".new" + std::to_string(number);
        if (!std::filesystem::exists(name, ignored)) {
            return name;
        }
    }
}

// A temporary file that replaces another file once it is complete, and is deleted otherwise.
class CNewFile {
public:
    explicit CNewFile(std::filesystem::path path) : m_path(std::move(path)) {}
    ~CNewFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    CNewFile(const CNewFile&) = delete;
    CNewFile& operator=(const CNewFile&) = delete;

    bool Write(const std::string& bytes) const {
        std::ofstream file(m_path, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        return file.good();
    }

    // Keeps the permissions of the replaced file.
    bool Replace(const std::filesystem::path& target, bool exists) const {
        std::error_code error;
        if (exists) {
            std::filesystem::permissions(m_path, std::filesystem::status(target, error).permissions(), error);
        }
        std::filesystem::rename(m_path, target, error);
        return !error;
    }

private:
    std::filesystem::path m_path;
};

}  // namespace

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
    std::error_code ignored;
    // Writes through links.
    const std::filesystem::path target = std::filesystem::weakly_canonical(PathOf(name), ignored);
    const bool exists = std::filesystem::exists(target, ignored);
    const CNewFile file(UnusedName(target));
    const bool mayBeReplaced = !exists || (std::filesystem::is_regular_file(target, ignored) &&
                                           std::ofstream(target, std::ios::app).is_open());
    if (!mayBeReplaced || !file.Write(bytes) || !file.Replace(target, exists)) {
        throw CToolError(name + ": the file cannot be written" + (exists ? ", it is unchanged" : ""));
    }
}

}  // namespace tavrin::tools
