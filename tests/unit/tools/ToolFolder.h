// A temporary folder for a test.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tools/files/Files.h"

namespace tests {

using namespace tavrin::tools;

class CToolFolder {
public:
    CToolFolder() : m_path(testing::TempDir() + "tavrin-tools-" + std::to_string(::getpid()) + "/") {
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~CToolFolder() { std::filesystem::remove_all(m_path); }
    CToolFolder(const CToolFolder&) = delete;
    CToolFolder& operator=(const CToolFolder&) = delete;

    std::string Path(const std::string& name) const { return m_path + name; }
    std::string Write(const std::string& name, const std::string& bytes) const {
        WriteBytes(Path(name), bytes);
        return Path(name);
    }
    std::string Read(const std::string& name) const {
        return std::filesystem::exists(Path(name)) ? ReadBytes(Path(name)) : "(no file)";
    }

    // A text without the folder's name.
    std::string Short(std::string text) const {
        for (std::size_t at = text.find(m_path); at != std::string::npos; at = text.find(m_path)) {
            text.erase(at, m_path.size());
        }
        return text;
    }

private:
    std::string m_path;
};

// What a command prints to the standard output.
template <class Command>
std::string OutputOf(Command command) {
    testing::internal::CaptureStdout();
    command();
    std::fflush(stdout);
    return testing::internal::GetCapturedStdout();
}

}  // namespace tests
