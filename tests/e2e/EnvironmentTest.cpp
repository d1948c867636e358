// The environment that scripts/with-wine prepares for Windows programs.
#include <cstdlib>
#include <fstream>

#include "tests/e2e/GalleryWindow.h"

namespace fs = std::filesystem;

namespace {

class Environment : public GalleryWindow {
protected:
    // The flags with which the system runs the program: <sys/personality.h>.
    unsigned long Personality() const {
        std::ifstream file("/proc/" + std::to_string(run.Process()) + "/personality");
        unsigned long flags = 0;
        file >> std::hex >> flags;
        return flags;
    }
};

TEST_F(Environment, ProgramsRunWithoutRandomAddresses) {
    constexpr unsigned long kNoRandomization = 0x0040000;
    if (std::system("setarch --addr-no-randomize true 2>/dev/null") != 0) {
        GTEST_SKIP() << "the system does not allow to turn the randomization off";
    }
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_EQ(Personality() & kNoRandomization, kNoRandomization);
}

TEST_F(Environment, TheOutputSaysWhyAProgramCannotStart) {
    fs::remove(run.Folder() / "program" / "TD_Alloc.dll");
    run.StartProgram({});
    EXPECT_NE(run.Wait(), 0);
    EXPECT_NE(run.Errors().find("TD_Alloc.dll"), std::string::npos) << run.Errors();
}

TEST_F(Environment, TheLinksOfAMovedPrefixLeadToItsOwnHome) {
    const fs::path home = run.Folder() / "wine.home", user = run.Folder() / "wine/drive_c/users/someone";
    fs::create_directories(home / "Music");
    fs::create_directories(user / "AppData");
    fs::create_symlink("/gone/build/wine.home", user / "Documents");
    fs::create_symlink("/gone/build/wine.home", user / "AppData/Templates");
    fs::create_symlink(home / "Music", user / "Music");
    fs::create_symlink("AppData", user / "Relative");
    const std::string command =
        SCRIPTS_DIR "/renew-links '" + (run.Folder() / "wine").string() + "' '" + home.string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(fs::read_symlink(user / "Documents"), home);
    EXPECT_EQ(fs::read_symlink(user / "AppData/Templates"), home);
    EXPECT_EQ(fs::read_symlink(user / "Music"), home / "Music");
    EXPECT_EQ(fs::read_symlink(user / "Relative"), "AppData");
}

}  // namespace
