// The setup program beside the archive: silent and by hand, with and without a host, and its uninstaller.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

constexpr char kUninstallKey[] = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\TavrinWnd-";

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Setup : public testing::Test {
protected:
    // Packed once, for it takes long.
    static void SetUpTestSuite() {
        packed = new HostRun;
        OutputOf(SCRIPTS_DIR "/pack-dist " + ArchitectureName() + " '" + packed->Folder().string() + "'");
        for (const fs::directory_entry& file : fs::directory_iterator(packed->Folder())) {
            if (file.path().extension() == ".exe") {
                setup = file.path();
            }
        }
    }
    static void TearDownTestSuite() { delete packed; }

    void SetUp() override { ASSERT_TRUE(fs::exists(setup)) << "scripts/pack-dist made no setup program"; }
    void TearDown() override {
        if (IsInstalled()) {
            Uninstall();
        }
    }

    // Wine's drive Z: is the root of all files.
    static std::string WindowsPath(const fs::path& path) {
        std::string text = "Z:" + path.string();
        for (char& letter : text) {
            letter = letter == '/' ? '\\' : letter;
        }
        return text;
    }
    fs::path Installed() const { return run.Folder() / "tools"; }

    // The exit status of a silent run into Installed().
    int Install(std::vector<std::string> options) {
        run.UseProgram(setup);
        options.insert(options.begin(), "/S");
        options.push_back("/D=" + WindowsPath(Installed()));
        run.StartProgram(options);
        return run.Wait();
    }
    // The uninstaller goes on in a copy of its own after its first process has ended.
    void Uninstall() {
        run.UseProgram(Installed() / "uninstall.exe");
        run.StartProgram({"/S"});
        EXPECT_EQ(run.Wait(), 0);
        EXPECT_TRUE(WaitUntil([] { return !IsInstalled(); }));
    }
    // The registration is removed last.
    static bool IsInstalled() {
        return OutputOf("'" SCRIPTS_DIR "/wine' reg query '" + std::string(kUninstallKey) +
                        ArchitectureName() + "' 2>/dev/null")
                   .find("UninstallString") != std::string::npos;
    }

    static inline HostRun* packed = nullptr;
    static inline fs::path setup;
    HostRun run;
};

TEST_F(Setup, SilentlyInstallsWhatTheArchiveHoldsAndRemovesItAgain) {
    ASSERT_EQ(Install({}), 0);
    EXPECT_TRUE(IsInstalled());
    EXPECT_EQ(OutputOf("cd '" + Installed().string() + "' && sha256sum --check --quiet SHA256SUMS 2>&1"), "");
    EXPECT_EQ(OutputOf("cd '" + Installed().string() +
                       "' && find . -type f ! -name SHA256SUMS ! -name uninstall.exe | wc -l"),
              OutputOf("cd '" + Installed().string() + "' && wc -l < SHA256SUMS"));
    Uninstall();
    EXPECT_FALSE(fs::exists(Installed()));
}

TEST_F(Setup, WhatIsInstalledRunsAndItsTracesAreRemovedToo) {
    ASSERT_EQ(Install({}), 0);
    HostRun host;
    host.UseProgram(Installed() / "DevHost.exe");
    host.StartProgram({"--eval", "(load \"door.lsp\")", "--eval", "(strlen (item-begin \"window\" nil))"});
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
    EXPECT_TRUE(fs::exists(Installed() / "samples/window/window_TMP.TXT"));
    Uninstall();
    EXPECT_FALSE(fs::exists(Installed()));
}

TEST_F(Setup, WhatTheUserHasAddedStays) {
    ASSERT_EQ(Install({}), 0);
    fs::create_directory(Installed() / "samples/cabinet");
    std::ofstream(Installed() / "samples/cabinet/cabinet.TXT") << "mine";
    Uninstall();
    EXPECT_EQ(BytesOf(Installed() / "samples/cabinet/cabinet.TXT"), "mine");
    EXPECT_EQ(OutputOf("cd '" + Installed().string() + "' && find . -type f"),
              "./samples/cabinet/cabinet.TXT\n");
}

TEST_F(Setup, TheModuleIsCopiedToAHostAndRemovedAgain) {
    const fs::path host = run.Folder() / "host";
    fs::create_directory(host);
    ASSERT_EQ(Install({"/HOST=" + WindowsPath(host)}), 0);
    EXPECT_EQ(BytesOf(host / "TavrinWnd.dll"), BytesOf(ProgramFolder() / "TavrinWnd.dll"));
    EXPECT_EQ(BytesOf(host / "TavrinRes.dll"), BytesOf(ProgramFolder() / "TavrinRes.dll"));
    Uninstall();
    EXPECT_TRUE(fs::is_empty(host));
}

TEST_F(Setup, TheTextsOfAHostAreNotReplaced) {
    const fs::path host = run.Folder() / "host";
    fs::create_directory(host);
    std::ofstream(host / "TavrinRes.dll") << "mine";
    ASSERT_EQ(Install({"/HOST=" + WindowsPath(host)}), 0);
    EXPECT_TRUE(fs::exists(host / "TavrinWnd.dll"));
    Uninstall();
    EXPECT_FALSE(fs::exists(host / "TavrinWnd.dll"));
    EXPECT_EQ(BytesOf(host / "TavrinRes.dll"), "mine");
}

TEST_F(Setup, WithoutTheHostsFolderNothingIsInstalled) {
    EXPECT_EQ(Install({"/HOST=" + WindowsPath(run.Folder() / "none")}), 2);
    EXPECT_FALSE(fs::exists(Installed()));
    EXPECT_FALSE(IsInstalled());
}

}  // namespace
