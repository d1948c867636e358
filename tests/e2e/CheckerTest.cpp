// The Windows program of the checker: it says byte for byte what the native one says.
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

// What the program prints, run in a folder, with its exit status after it.
std::string Checked(const fs::path& folder, const std::string& arguments) {
    return OutputOf("cd '" + folder.string() + "' && '" SCRIPTS_DIR "/wine' '" +
                    (ProgramFolder() / "tavrincheck.exe").string() + "' " + arguments +
                    " 2>/dev/null; echo $?");
}

TEST(Checker, FindsOnWindowsWhatItFindsNatively) {
    std::ifstream expected(BAD_FILES_PARENT "/bad.expected", std::ios::binary);
    EXPECT_EQ(Checked(BAD_FILES_PARENT, "bad --texts bad/texts/gate.it.rc --texts bad/texts/gate.en.rc"),
              std::string(std::istreambuf_iterator<char>(expected), {}) + "1\n");
}

TEST(Checker, FindsNothingInTheSamplesOnWindows) {
    EXPECT_EQ(Checked(SAMPLES_DIR, ". --texts texts/TavrinRes.it.rc --texts '" +
                                       (ProgramFolder() / "en/TavrinRes.dll").string() + "'"),
              "0\n");
}

// The name's last letter is in no single-byte code page together with the first.
TEST(Checker, TakesNamesOfFilesInAnyScript) {
    const HostRun files;
    files.Write("porta-à-дверь.TXT", "Porta\n<<2001>>\nVAR\n$1 = \"<<1501>>\"d 900\nEND_VAR\n");
    files.Write("porta-à-дверь.png", "");
    EXPECT_EQ(
        Checked(files.Folder(), "porta-à-дверь.TXT"),
        "porta-à-дверь.TXT:4:16: error: the type letter 'd' must be upper case: the parameter gets a warning "
        "instead of a row [type-small-letter]\n"
        "    $1 = \"<<1501>>\"d 900\n"
        "                   ^\n"
        "1\n");
}

}  // namespace
