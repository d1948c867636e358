// The files that a user installs: what they export and import, and that any host can load them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <regex>
#include <set>
#include <string>

#include "Desktop.h"
#include "HostRun.h"

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

    static std::set<std::string> All(const std::string& text, const std::string& pattern) {
        const std::regex expression(pattern);
        std::set<std::string> found;
        for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
            found.insert((*match)[1]);
        return found;
    }
};

TEST_P(ModuleFile, ExportsTheEntryPointAlone) {
    const std::string headers = Headers("TavrinWnd.dll");
    const std::size_t table = headers.find("[Ordinal/Name Pointer] Table");
    ASSERT_NE(table, std::string::npos);
    const std::string names = headers.substr(table, headers.find("\n\n", table) + 1 - table);
    EXPECT_EQ(All(names, R"(\[\s*\d+\][^\n]*?(\w+)\n)"), std::set<std::string>{"icrxEntryPoint"});
}

TEST_P(ModuleFile, ImportsTheHostsAllocatorAndSystemLibrariesAlone) {
    const std::string headers = Headers("TavrinWnd.dll");
    std::set<std::string> libraries;
    for (std::string name : All(headers, R"(DLL Name: (\S+))")) {
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        libraries.insert(name);
    }
    const std::set<std::string> allowed = {"td_alloc.dll", "kernel32.dll", "user32.dll",   "gdi32.dll",
                                           "msvcrt.dll",   "comctl32.dll", "comdlg32.dll", "ole32.dll",
                                           "oleaut32.dll", "shell32.dll",  "shlwapi.dll",  "gdiplus.dll",
                                           "advapi32.dll"};
    for (const std::string& library : libraries)
        EXPECT_TRUE(allowed.contains(library)) << library;
    EXPECT_TRUE(libraries.contains("td_alloc.dll"));
    const std::size_t table = headers.find("DLL Name: TD_Alloc.dll");
    const std::string imports = headers.substr(table, headers.find("DLL Name:", table + 9) - table);
    EXPECT_EQ(All(imports, R"((\?\S+))"), GetParam().allocator);
}

TEST_P(ModuleFile, ComesWithItsCompanions) {
    for (const char* file :
         {"TavrinWnd.dll", "TavrinRes.dll", "en/TavrinRes.dll", "TD_Alloc.dll", "DevHost.exe"})
        EXPECT_TRUE(fs::exists(fs::path(GetParam().folder) / file)) << file;
}

INSTANTIATE_TEST_SUITE_P(
    Built, ModuleFile,
    testing::Values(Architecture{"x64",
                                 BIN_DIR,
                                 "x86_64-w64-mingw32-objdump",
                                 {"??2@YAPEAX_K@Z", "??_U@YAPEAX_K@Z", "??3@YAXPEAX@Z", "??_V@YAXPEAX@Z"}},
                    Architecture{"x86",
                                 BIN_DIR_X86,
                                 "i686-w64-mingw32-objdump",
                                 {"??2@YAPAXI@Z", "??_U@YAPAXI@Z", "??3@YAXPAX@Z", "??_V@YAXPAX@Z"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(AnyHost, RunsTheModuleWhateverItsFileIsCalled) {
    HostRun host;
    host.UseSample("door");
    const fs::path folder = host.Folder() / "program";
    fs::create_directory(folder);
    for (const char* file : {"TavrinWnd.dll", "TavrinRes.dll", "TD_Alloc.dll"})
        fs::copy_file(fs::path(BIN_DIR) / file, folder / file);
    fs::copy_file(fs::path(BIN_DIR) / "DevHost.exe", folder / "Other Name.exe");
    host.UseProgram(folder / "Other Name.exe");
    host.Start({"--eval", R"((tavrinwnd "door"))"});
    const Window dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    dialog.Press("Return");
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
    EXPECT_EQ(host.Answer(), "0");
}

TEST(AnyHost, IsToldWhichFunctionItLacks) {
    HostRun host;
    host.UseProgram(fs::path(TESTS_DIR) / "PoorHost.exe");
    host.Start({});
    const Window box = Window::WithTitle("Error!");
    ASSERT_TRUE(box.IsValid()) << host.Errors();
    const Screenshot shown = box.LookWhenStill();
    EXPECT_GT(shown.Width(), 100);
    box.Press("Return");
    // Its exit status is what the load request answered: refused, without a crash.
    EXPECT_EQ(host.Wait(), 3) << host.Errors();
}

}  // namespace
