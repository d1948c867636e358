#include <gtest/gtest.h>

#include <filesystem>

#include "Desktop.h"
#include "HostRun.h"

namespace {

constexpr Rgb headerGrey{0xC8, 0xC8, 0xC8};
constexpr Rgb dialogGrey{0xE1, 0xE1, 0xE1};

// The item dialog on the sample door, opened by the stand-in host on the checking allocator.
class ItemDialog : public testing::Test {
protected:
    void Open(const std::string& call = R"((tavrinwnd "door" 1.0 1))") {
        m_host.UseSample("door");
        m_host.Start({"--check-heap", "--lunits", "2", "--luprec", "2", "--eval", call});
        m_dialog = Window::WithTitle("Porta a battente");
        ASSERT_TRUE(m_dialog.IsValid()) << m_host.Errors();
        LookWhenPainted();
    }

    // The header is the last of the controls and so the last to be painted.
    void LookWhenPainted() {
        EXPECT_TRUE(WaitUntil([this] {
            m_screen = m_dialog.Look();
            return m_screen.At(X(643), Y(9)) == headerGrey;
        })) << "the header's grey never came up";
    }

    // A point given in the dialog's own units, as pixels.
    int X(int units) const { return units * m_screen.Width() / 645; }
    int Y(int units) const { return units * m_screen.Height() / 290; }
    void ClickAt(int x, int y) const { m_dialog.Click(X(x), Y(y)); }

    void ExpectFilesUntouched() {
        for (const char* name : {"door.TXT", "door_TMP.TXT"}) {
            HostRun untouched;
            untouched.UseSample("door");
            EXPECT_EQ(m_host.Read(name), untouched.Read(name)) << name;
        }
    }

    HostRun m_host;
    Window m_dialog;
    Screenshot m_screen{""};
};

TEST_F(ItemDialog, OkWritesBothFilesAndAnswersZero) {
    Open();
    ClickAt(564, 279);
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "0");
    EXPECT_EQ(
        m_host.Read("door_TMP.TXT"),
        "(working file of door.lsp)\r\n<<2001>>\r\nVAR\r\n#1 = 900\r\n#2 = 2100\r\n#3 = 125\r\n#4 = 80\r\n"
        "#5 = 1050\r\n#6 = 20\r\n$7 = 1\r\n$8 = 3\r\n#9 = 75\r\n#10 = 0.35\r\nEND_VAR\r\n"
        "Lengths in millimetres, the angle in degrees, the glazing as a share of the leaf.\r\n");
    EXPECT_EQ(
        m_host.Read("door.TXT"),
        "Hinged door: sample item of TavrinWnd\r\n<<2001>>\r\nVAR\r\n$1 = \"<<1501>>\"D900\r\n"
        "$2 = \"<<1502>>%\"D2100\r\n$3 = \"<<1503>>\"D125\r\n$4 = \"<<1504>>\"D80\r\n"
        "$5 = \"<<1505>>\"D1050\r\n$6 = \"<<1506>>\"D20\r\n$7 = \"<<1507>>\"I1\r\n$8 = \"<<1508>>\"I3\r\n"
        "$9 = \"<<1509>>\"R75\r\n$10 = \"<<1510>>\"R0.35\r\nEND_VAR\r\n"
        "Lengths in millimetres, the angle in degrees, the glazing as a share of the leaf.\r\n");
}

TEST_F(ItemDialog, CancelAnswersNilAndLeavesTheFilesAlone) {
    Open();
    ClickAt(616, 279);
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, EscapeAnswersNilAndLeavesTheFilesAlone) {
    Open();
    m_dialog.Press("Escape");
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, TheCloseBoxAnswersNilAndLeavesTheFilesAlone) {
    Open();
    m_dialog.Press("alt+F4");
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "nil");
    ExpectFilesUntouched();
}

TEST_F(ItemDialog, EnterPressesOk) {
    Open();
    m_dialog.Press("Return");
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "0");
}

TEST_F(ItemDialog, TheHeaderIsADarkerBandThanTheRest) {
    Open();
    // Behind the header's text, and at the far end of its line.
    EXPECT_EQ(m_screen.At(X(454), Y(2)), headerGrey);
    EXPECT_EQ(m_screen.At(X(643), Y(9)), headerGrey);
    // Around the buttons, and in the grid's rows below the last.
    EXPECT_EQ(m_screen.At(X(500), Y(279)), dialogGrey);
    EXPECT_EQ(m_screen.At(X(590), Y(271)), dialogGrey);
    EXPECT_EQ(m_screen.At(X(560), Y(260)), dialogGrey);
}

TEST_F(ItemDialog, ThePictureTakesTheWholeLeftPart) {
    Open();
    // White paper with a grey edge, from the upper left to the lower right of its part.
    const Rgb white{255, 255, 255};
    EXPECT_EQ(m_screen.At(X(440), Y(10)), white);
    EXPECT_EQ(m_screen.At(X(10), Y(280)), white);
    EXPECT_EQ(m_screen.At(X(350), Y(250)), white);
}

TEST_F(ItemDialog, OpensWithoutAPicture) {
    m_host.UseSample("door");
    std::filesystem::remove(m_host.Folder() / "door.png");
    m_host.Start({"--check-heap", "--eval", R"((tavrinwnd "door"))"});
    m_dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(m_dialog.IsValid());
    LookWhenPainted();
    EXPECT_EQ(m_screen.At(X(200), Y(150)), dialogGrey);
    m_dialog.Press("Escape");
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
}

TEST_F(ItemDialog, AMissingItemIsNamedAndAnswersNil) {
    m_host.Start({"--eval", R"((tavrinwnd "nothing"))"});
    const Window box = Window::WithTitle("Error!");
    ASSERT_TRUE(box.IsValid());
    box.Press("Return");
    EXPECT_EQ(m_host.Wait(), 0) << m_host.Errors();
    EXPECT_EQ(m_host.Answer(), "nil");
}

}  // namespace
