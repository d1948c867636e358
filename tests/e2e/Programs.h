// Where the programs are that the tests run: in build/x64, or in build/x86 when TAVRIN_ARCHITECTURE is x86.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

inline std::string ArchitectureName() {
    const char* const given = std::getenv("TAVRIN_ARCHITECTURE");
    return given != nullptr ? given : "x64";
}

inline std::filesystem::path ArchitectureFolder() {
    return std::filesystem::path(BUILD_DIR) / ArchitectureName();
}

inline std::filesystem::path ProgramFolder() {
    return ArchitectureFolder() / "bin";
}
