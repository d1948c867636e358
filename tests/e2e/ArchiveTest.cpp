// The archive that users download: packed from the built programs, unpacked in a folder of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
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
            if (file.path().extension() == ".zip") {
                return file.path();
            }
        }
        return {};
    }

    // The setup program beside an archive.
    static fs::path SetupOf(const fs::path& zip) {
        return zip.parent_path() / (zip.stem().string() + "-setup.exe");
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
    const fs::path again = Pack("again");
    EXPECT_EQ(BytesOf(archive), BytesOf(again));
    EXPECT_EQ(BytesOf(SetupOf(archive)), BytesOf(SetupOf(again)));
}

// The values of an attribute in a page: `start` is its name with the blank before and the quote after it.
std::set<std::string> ValuesOf(const std::string& page, const std::string& start) {
    std::set<std::string> values;
    for (std::size_t at = 0; (at = page.find(start, at)) != std::string::npos;) {
        at += start.size();
        values.insert(page.substr(at, page.find('"', at) - at));
    }
    return values;
}

std::set<std::string> LinksOf(const std::string& page) {
    std::set<std::string> links = ValuesOf(page, " href=\"");
    links.merge(ValuesOf(page, " src=\""));
    return links;
}

TEST_F(Archive, ItsPagesAreHtmlAndLeadToWhatIsThere) {
    int pages = 0;
    for (const fs::directory_entry& file : fs::recursive_directory_iterator(unpacked)) {
        EXPECT_NE(file.path().extension(), ".md") << file.path();
        if (file.path().extension() != ".html") {
            continue;
        }
        ++pages;
        for (const std::string& link : LinksOf(BytesOf(file.path()))) {
            const std::size_t mark = link.find('#');
            const fs::path target =
                mark == 0 ? file.path() : file.path().parent_path() / link.substr(0, mark);
            EXPECT_TRUE(fs::exists(target)) << file.path() << " leads to " << link;
            if (mark != std::string::npos) {
                EXPECT_TRUE(ValuesOf(BytesOf(target), " id=\"").contains(link.substr(mark + 1)))
                    << file.path() << " leads to " << link;
            }
        }
    }
    EXPECT_GT(pages, 10);
}

TEST_F(Archive, ItsStartPageNeedsNoMakeAndNamesTheLicence) {
    const std::string page = BytesOf(unpacked / "README.html");
    EXPECT_EQ(page.find("make "), std::string::npos);
    EXPECT_NE(page.find("href=\"LICENSE.txt\""), std::string::npos);
    EXPECT_NE(BytesOf(unpacked / "LICENSE.txt").find("has not chosen a licence yet"), std::string::npos);
}

// The Wine prefix of the tests has no browser.
TEST_F(Archive, HelpInDevHostNamesItsStartPageWhereNoBrowserIs) {
    host.UseProgram(unpacked / "DevHost.exe");
    host.StartProgram({});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    ASSERT_TRUE(main.Activate());
    main.Press("F1");
    EXPECT_TRUE(WaitUntil([&] {
        return host.Errors().find("\\README.html': open it in a browser") != std::string::npos;
    })) << host.Errors();
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
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
