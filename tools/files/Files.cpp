#include "tools/files/Files.h"

#include <fstream>
#include <system_error>
#include <utility>

namespace {

// A name beside the file's that no file has.
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

// A file that is made under a name of its own, takes the place of another once it is whole, and is gone
// otherwise.
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

    // The permissions are those of the file that was there.
    bool TakeThePlaceOf(const std::filesystem::path& target, bool isThere) const {
        std::error_code error;
        if (isThere) {
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
    // Where the name is a link, what it leads to is written.
    const std::filesystem::path target = std::filesystem::weakly_canonical(PathOf(name), ignored);
    const bool isThere = std::filesystem::exists(target, ignored);
    const CNewFile file(UnusedName(target));
    const bool mayBeReplaced = !isThere || (std::filesystem::is_regular_file(target, ignored) &&
                                            std::ofstream(target, std::ios::app).is_open());
    if (!mayBeReplaced || !file.Write(bytes) || !file.TakeThePlaceOf(target, isThere)) {
        throw CToolError(name + ": the file cannot be written" + (isThere ? ", it stays as it was" : ""));
    }
}
