#include <filesystem>

#include "tests/e2e/ItemDialogWindow.h"

namespace {

class ItemDialog : public ItemDialogWindow {
protected:
    void ExpectFilesUntouched() {
        for (const char* name : {"door.TXT", "door_TMP.TXT"}) {
            HostRun untouched;
            untouched.UseSample("door");
            EXPECT_EQ(host.Read(name), untouched.Read(name)) << name;
        }
    }
};

TEST_F(ItemDialog, OkWritesBothFilesAndAnswersZero) {
    Open();
    PressOk();
    EXPECT_EQ(Answer(), "0");
    const std::string working = host.Read("door_TMP.TXT");
    EXPECT_EQ(
        working.substr(0, working.find("#11")),
        "(working file of door.lsp)\r\n<<2001>>\r\nVAR\r\n#1 = 900\r\n#2 = 2100\r\n#3 = 125\r\n#4 = 80\r\n"
        "#5 = 1050\r\n#6 = 20\r\n$7 = 1\r\n$8 = 3\r\n#9 = 75\r\n#10 = 0.35\r\n");
    const std::string changed = host.Read("door.TXT");
    EXPECT_EQ(
        changed.substr(0, changed.find("$11")),
        "Hinged door: sample item of TavrinWnd\r\n<<2001>>\r\nVAR\r\n$1 = \"<<1501>>\"D900\r\n"
        "$2 = \"<<1502>>%\"D2100\r\n$3 = \"<<1503>>\"D125\r\n$4 = \"<<1504>>\"D80\r\n"
        "$5 = \"<<1505>>\"D1050\r\n$6 = \"<<1506>>\"D20\r\n$7 = \"<<1507>>\"I1\r\n$8 = \"<<1508>>\"I3\r\n"
        "$9 = \"<<1509>>\"R75\r\n$10 = \"<<1510>>\"R0.35\r\n");
    // The last parameter, the end of the block, and the line after it just as it was.
    HostRun untouched;
    untouched.UseSample("door");
    const std::string before = untouched.Read("door.TXT");
    const std::string tail = before.substr(before.find("END_VAR"));
    EXPECT_EQ(working.substr(working.find("$27")), "$27 = 30\r\n" + tail);
    EXPECT_EQ(changed.substr(changed.find("$27")), "$27 = \"<<1527>>\"I30\r\n" + tail);
}

TEST_F(ItemDialog, CancelAnswersNilAndLeavesTheFilesAlone) {
    Open();
    PressCancel();
    EXPECT_EQ(Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, EscapeAnswersNilAndLeavesTheFilesAlone) {
    Open();
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    EXPECT_EQ(Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, TheCloseBoxAnswersNilAndLeavesTheFilesAlone) {
    Open();
    EXPECT_TRUE(dialog.PressUntilClosed("alt+F4"));
    EXPECT_EQ(Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, EnterPressesOk) {
    Open();
    EXPECT_TRUE(dialog.PressUntilClosed("Return"));
    EXPECT_EQ(Answer(), "0");
}

TEST_F(ItemDialog, TheHeaderIsADarkerBandThanTheRest) {
    Open();
    // After the header's text, and at the far end of its line.
    EXPECT_EQ(screen.At(X(454), Y(2)), headerGray);
    EXPECT_EQ(screen.At(X(643), Y(9)), headerGray);
    // Around the buttons, and below the rows of the grid.
    EXPECT_EQ(screen.At(X(500), Y(279)), dialogGray);
    EXPECT_EQ(screen.At(X(590), Y(271)), dialogGray);
    EXPECT_EQ(screen.At(X(453) + 190, RowY(1)), dialogGray);
}

TEST_F(ItemDialog, ThePictureTakesTheWholeLeftPart) {
    Open();
    // White paper with a grey edge, from the upper left to the lower right of its part.
    const Rgb white{255, 255, 255};
    EXPECT_EQ(screen.At(X(440), Y(10)), white);
    EXPECT_EQ(screen.At(X(10), Y(280)), white);
    EXPECT_EQ(screen.At(X(350), Y(250)), white);
}

TEST_F(ItemDialog, OpensWithoutAPicture) {
    host.UseSample("door");
    std::filesystem::remove(host.Folder() / "door.png");
    // Other items than those beside the program, which have a picture.
    host.Start({"--check-heap", "--items", ".", "--eval", R"((tavrinwnd "door"))"});
    dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(dialog.IsValid());
    LookWhenPainted();
    EXPECT_EQ(screen.At(X(200), Y(150)), dialogGray);
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(ItemDialog, AMissingItemIsNamedAndAnswersNil) {
    host.Start({"--eval", R"((tavrinwnd "nothing"))"});
    const Window box = Window::WithTitle("Error!");
    ASSERT_TRUE(box.IsValid());
    EXPECT_TRUE(box.PressUntilClosed("Return"));
    EXPECT_EQ(Answer(), "nil");
}

}  // namespace
