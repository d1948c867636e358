// A temporary folder for the files of a benchmark.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace tavrin::benchmarks {

// A new folder, removed with the object.
class CWorkFolder {
public:
    CWorkFolder() {
        std::string name = (Memory() / "tavrin-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no folder for files can be made at " + name);
        }
        m_path = name;
    }
    CWorkFolder(const CWorkFolder&) = delete;
    CWorkFolder& operator=(const CWorkFolder&) = delete;
    ~CWorkFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::filesystem::path File(const char* name) const { return m_path / name; }

private:
    // A folder in memory where there is one: a disk's time would hide ours.
    static std::filesystem::path Memory() {
        const std::filesystem::path memory = "/dev/shm";
        return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    }

    std::filesystem::path m_path;
};

}  // namespace tavrin::benchmarks
