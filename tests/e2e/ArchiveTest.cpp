// The archive that users download: packed from the built programs, unpacked in a folder of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Archive : public testing::Test {
protected:
    // Packed once, for it takes long; unpacked for each test.
    static void SetUpTestSuite() {
        packed = new HostRun;
        archive = Pack("dist");
    }
    static void TearDownTestSuite() { delete packed; }

    void SetUp() override {
        ASSERT_TRUE(fs::exists(archive)) << "scripts/pack-dist made no archive";
        OutputOf("cd '" + host.Folder().string() + "' && cmake -E tar xf '" + archive.string() + "'");
        unpacked = host.Folder() / archive.stem();
        ASSERT_TRUE(fs::exists(unpacked / "DevHost.exe"));
    }

    // The archive, packed into a folder of that name.
    static fs::path Pack(const std::string& name) {
        const fs::path folder = packed->Folder() / name;
        OutputOf(SCRIPTS_DIR "/pack-dist " + ArchitectureName() + " '" + folder.string() + "'");
        for (const fs::directory_entry& file : fs::directory_iterator(folder)) {
            return file.path();
        }
        return {};
    }

    static inline HostRun* packed = nullptr;  // its folder holds the archives
    static inline fs::path archive;
    HostRun host;
    fs::path unpacked;
};

// The samples beside DevHost.exe are found without an option. The routine gives the values that OK left.
TEST_F(Archive, RunsItsSampleItemWhereverItIsUnpacked) {
    host.UseProgram(unpacked / "DevHost.exe");
    host.Start({"--check-heap", "--eval", R"((load "door.lsp"))", "--eval",
                R"((assoc 2 (item-edit "door" nil nil)))"});
    const Window dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    EXPECT_TRUE(dialog.PressUntilClosed("Return"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
    EXPECT_NE(host.Output().find("(2 . 2100.0)"), std::string::npos) << host.Output();
}

TEST_F(Archive, HoldsTheSumsOfAllItsFiles) {
    const std::string inFolder = "cd '" + unpacked.string() + "' && ";
    EXPECT_EQ(OutputOf(inFolder + "sha256sum --check --quiet SHA256SUMS 2>&1"), "");
    EXPECT_EQ(OutputOf(inFolder + "find . -type f ! -name SHA256SUMS | wc -l"),
              OutputOf(inFolder + "wc -l < SHA256SUMS"));
}

TEST_F(Archive, IsTheSamePackedTwice) {
    EXPECT_EQ(BytesOf(archive), BytesOf(Pack("again")));
}

TEST_F(Archive, IsNamedAfterTheVersionThatTheModuleShows) {
    const std::string name = archive.stem().string();  // TavrinWnd-VERSION-ARCHITECTURE
    const std::size_t start = name.find('-') + 1;
    std::u16string wide;
    for (const char letter :
         "ProductVersion" + std::string(1, '\0') + name.substr(start, name.rfind('-') - start) + '\0') {
        wide += static_cast<char16_t>(letter);
    }
    const std::string bytes(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t));
    EXPECT_NE(BytesOf(unpacked / "TavrinWnd.dll").find(bytes), std::string::npos);
}

}  // namespace
