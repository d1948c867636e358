// The files that a user installs: what they export and import, and that any host can load them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>
#include <sstream>
#include <string>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

struct Architecture {
    const char* name;
    const char* folder;
    const char* objdump;
    std::set<std::string> allocator;
};

void PrintTo(const Architecture& architecture, std::ostream* stream) {
    *stream << architecture.name;
}

class ModuleFile : public testing::TestWithParam<Architecture> {
protected:
    std::string Headers(const std::string& file) const {
        return OutputOf(std::string(GetParam().objdump) + " -p " + GetParam().folder + "/" + file);
    }

    // The last words of the lines of `text` that hold `mark`.
    static std::set<std::string> LastWords(const std::string& text, const std::string& mark) {
        std::set<std::string> words;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            if (line.find(mark) != std::string::npos) {
                words.insert(line.substr(line.find_last_of(" \t") + 1));
            }
        }
        return words;
    }

    // Import libraries differ in how they write a system library's name.
    static std::string LowerCase(std::string text) {
        std::transform(text.begin(), text.end(), text.begin(),
                       [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
        return text;
    }

    // The stretch of `text` from one mark up to another.
    static std::string Between(const std::string& text, const std::string& from, const std::string& to) {
        const std::size_t start = text.find(from);
        if (start == std::string::npos) {
            return {};
        }
        return text.substr(start, text.find(to, start + from.size()) - start);
    }
};

TEST_P(ModuleFile, ExportsTheEntryPointAlone) {
    const std::string names = Between(Headers("TavrinWnd.dll"), "[Ordinal/Name Pointer] Table\n", "\n\n");
    EXPECT_EQ(LastWords(names.substr(names.find('\n')), "["), std::set<std::string>{"icrxEntryPoint"});
}

TEST_P(ModuleFile, ImportsTheHostsAllocatorAndSystemLibrariesAlone) {
    const std::string headers = Headers("TavrinWnd.dll");
    const std::set<std::string> libraries = LastWords(headers, "DLL Name:");
    const std::set<std::string> allowed = {"td_alloc.dll", "kernel32.dll", "user32.dll",   "gdi32.dll",
                                           "msvcrt.dll",   "comctl32.dll", "comdlg32.dll", "ole32.dll",
                                           "oleaut32.dll", "shell32.dll",  "shlwapi.dll",  "gdiplus.dll",
                                           "advapi32.dll", "oleacc.dll"};
    for (const std::string& library : libraries) {
        EXPECT_TRUE(allowed.contains(LowerCase(library))) << library;
    }
    EXPECT_EQ(LastWords(Between(headers, "DLL Name: TD_Alloc.dll", "DLL Name:"), "?"), GetParam().allocator);
}

TEST_P(ModuleFile, ComesWithItsCompanions) {
    for (const char* file : {"TavrinWnd.dll", "TavrinRes.dll", "en/TavrinRes.dll", "TD_Alloc.dll",
                             "DevHost.exe", "tavrincheck.exe"}) {
        EXPECT_TRUE(fs::exists(fs::path(GetParam().folder) / file)) << file;
    }
}

// The system may load each file anywhere (with all 64 bits of choice where there are so many) and runs none
// of its data. A file without relocations could not be moved.
TEST_P(ModuleFile, IsProtectedLikeItsCompanions) {
    for (const char* file : {"TavrinWnd.dll", "TavrinRes.dll", "en/TavrinRes.dll", "TD_Alloc.dll",
                             "checked/TD_Alloc.dll", "DevHost.exe", "tavrincheck.exe"}) {
        const std::string headers = Headers(file);
        EXPECT_NE(headers.find("DYNAMIC_BASE"), std::string::npos) << file;
        EXPECT_NE(headers.find("NX_COMPAT"), std::string::npos) << file;
        EXPECT_EQ(headers.find("HIGH_ENTROPY_VA") != std::string::npos,
                  headers.find("(PE32+)") != std::string::npos)
            << file;
        EXPECT_EQ(headers.find("relocations stripped"), std::string::npos) << file;
        const bool hasCode = std::string(file).find("TavrinRes") == std::string::npos;
        const std::string relocations = Between(headers, "Entry 5 ", "\n");
        EXPECT_EQ(relocations.find(" 00000000 Base Relocation") == std::string::npos, hasCode) << file;
    }
}

// What would differ from one build to the next, or from one checkout to another.
TEST_P(ModuleFile, ContainsNeitherBuildTimeNorBuildPath) {
    for (const char* file :
         {"TavrinWnd.dll", "TavrinRes.dll", "TD_Alloc.dll", "DevHost.exe", "tavrincheck.exe"}) {
        EXPECT_NE(Headers(file).find("Thu Jan  1 00:00:00 1970"), std::string::npos) << file;
        std::ifstream stream(fs::path(GetParam().folder) / file, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_EQ(bytes.find(fs::path(SAMPLES_DIR).parent_path().string()), std::string::npos) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Built, ModuleFile,
    testing::Values(Architecture{"x64",
                                 BUILD_DIR "/x64/bin",
                                 "x86_64-w64-mingw32-objdump",
                                 {"??2@YAPEAX_K@Z", "??_U@YAPEAX_K@Z", "??3@YAXPEAX@Z", "??_V@YAXPEAX@Z"}},
                    Architecture{"x86",
                                 BUILD_DIR "/x86/bin",
                                 "i686-w64-mingw32-objdump",
                                 {"??2@YAPAXI@Z", "??_U@YAPAXI@Z", "??3@YAXPAX@Z", "??_V@YAXPAX@Z"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(AnyHost, RunsTheModuleWhateverItsFileIsCalled) {
    HostRun host;
    host.UseSample("door");
    const fs::path folder = host.Folder() / "program";
    fs::create_directory(folder);
    for (const char* file : {"TavrinWnd.dll", "TavrinRes.dll", "TD_Alloc.dll"}) {
        fs::copy_file(ProgramFolder() / file, folder / file);
    }
    fs::copy_file(ProgramFolder() / "DevHost.exe", folder / "Other Name.exe");
    host.UseProgram(folder / "Other Name.exe");
    host.Start({"--eval", R"((tavrinwnd "door"))"});
    const Window dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    EXPECT_TRUE(dialog.PressUntilClosed("Return"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
    EXPECT_EQ(host.Answer(), "0");
}

TEST(AnyHost, GetsAMessageThatNamesAMissingFunction) {
    HostRun host;
    host.UseProgram(ArchitectureFolder() / "tests" / "IncompleteHost.exe");
    host.Start({});
    const Window box = Window::WithTitle("Error!");
    ASSERT_TRUE(box.IsValid()) << host.Errors();
    const Screenshot shown = box.LookWhenStill();
    EXPECT_GT(shown.Width(), 100);
    EXPECT_TRUE(box.PressUntilClosed("Return"));
    // Its exit status is what the load request answered: refused, without a crash.
    EXPECT_EQ(host.Wait(), 3) << host.Errors();
}

// Pictures need GDI+, which every supported Windows has.
TEST(AnyHost, GetsAMessageWhenALibraryIsMissing) {
    const std::string overrides = std::getenv("WINEDLLOVERRIDES");
    setenv("WINEDLLOVERRIDES", (overrides + ";gdiplus=").c_str(), 1);
    HostRun host;
    host.Start({"--eval", R"((tavrinwnd "door"))"});
    EXPECT_EQ(host.Wait(), 1);
    setenv("WINEDLLOVERRIDES", overrides.c_str(), 1);
    EXPECT_NE(host.Errors().find("cannot be loaded: a library that it depends on is missing"),
              std::string::npos)
        << host.Errors();
}

}  // namespace
