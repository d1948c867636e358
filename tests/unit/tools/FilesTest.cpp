// Writing files whole or not at all, and the standard output.
#include "tools/files/Files.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>

#include "tests/unit/tools/ToolFolder.h"
#include "tools/files/ItemName.h"
#include "tools/tavrincheck/Output.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

namespace fs = std::filesystem;

// While this lives no file can grow beyond some bytes, as on a full disk.
class CFullDisk {
public:
    CFullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        constexpr rlim_t kRoom = 10;
        const rlimit limit{kRoom, m_before.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~CFullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

class Files : public testing::Test {
protected:
    std::string ErrorOf(const std::string& name, const std::string& bytes) const {
        try {
            WriteBytes(name, bytes);
            return "(none)";
        } catch (const CToolError& error) {
            return folder.Short(error.what());
        }
    }
    std::size_t Count() const {
        const fs::directory_iterator files(folder.Path(""));
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    const CToolFolder folder;
};

TEST_F(Files, OnAFullDiskAFileStaysAsItWasAndNothingIsLeftBesideIt) {
    const std::string name = folder.Write("a.TXT", "before");
    {
        const CFullDisk full;
        EXPECT_EQ(ErrorOf(name, "twenty bytes of text"),
                  "a.TXT: the file cannot be written, it is unchanged");
        EXPECT_EQ(ErrorOf(folder.Path("b.TXT"), "twenty bytes of text"), "b.TXT: the file cannot be written");
    }
    EXPECT_EQ(folder.Read("a.TXT"), "before");
    EXPECT_EQ(Count(), 1U);
}

TEST_F(Files, AFileThatIsWrittenKeepsItsPermissionsAndItsLink) {
    const std::string name = folder.Write("a.TXT", "before");
    constexpr fs::perms kOwnersOnly = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(name, kOwnersOnly);
    fs::create_symlink("a.TXT", folder.Path("link.TXT"));
    WriteBytes(folder.Path("link.TXT"), "after");
    EXPECT_EQ(folder.Read("a.TXT"), "after");
    EXPECT_EQ(fs::status(name).permissions(), kOwnersOnly);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.TXT")));
    EXPECT_EQ(Count(), 2U);
}

TEST_F(Files, AFileOfSomebodyElseWithANameLikeTheNewOnesStays) {
    folder.Write("a.TXT.new0", "mine");
    folder.Write("a.TXT", "after");
    EXPECT_EQ(folder.Read("a.TXT.new0"), "mine");
    EXPECT_EQ(folder.Read("a.TXT"), "after");
}

TEST_F(Files, WhatIsNoFileIsNotReplaced) {
    fs::create_directory(folder.Path("a.TXT"));
    EXPECT_EQ(ErrorOf(folder.Path("a.TXT"), "x"), "a.TXT: the file cannot be written, it is unchanged");
    EXPECT_EQ(ErrorOf("/dev/full", "x"), "/dev/full: the file cannot be written, it is unchanged");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(ErrorOf(folder.Path("none/a.TXT"), "x"), "none/a.TXT: the file cannot be written");
}

TEST(Output, WhatCannotBePrintedIsAnError) {
    std::fflush(stdout);
    const int before = ::dup(STDOUT_FILENO);
    const int full = ::open("/dev/full", O_WRONLY);
    ::dup2(full, STDOUT_FILENO);
    EXPECT_THROW(Print("a line\n"), CToolError);
    ::dup2(before, STDOUT_FILENO);
    ::close(full);
    ::close(before);
    std::clearerr(stdout);
}

TEST(ItemName, AnEndingCountsInEitherCase) {
    EXPECT_EQ(WithoutEnding("a/door_tmp.Txt", L"_TMP.TXT"), "a/door");
    EXPECT_EQ(WithoutEnding("door.TXT", L"_TMP.TXT"), std::nullopt);
    EXPECT_EQ(WithoutEnding(".TXT", L".TXT"), "");
    EXPECT_EQ(WithoutEnding("TXT", L".TXT"), std::nullopt);
}

}  // namespace
