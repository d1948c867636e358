// The dialogs worked with the keyboard alone: no test here touches the mouse.
#include <filesystem>

#include "tests/e2e/GalleryWindow.h"
#include "tests/e2e/ItemRun.h"

namespace {

// Rows of the door's grid.
constexpr int widthRow = 0;
constexpr int wallRow = 2;
constexpr int leavesRow = 6;
constexpr int angleRow = 8;

class KeyboardAlone : public ItemRun {
protected:
    // From the opened item dialog, whose OK button has the focus, to a row of the grid. The focused row's
    // name has a colour behind it.
    void GoToFirstRow() {
        PressKeys("Tab Tab Down");
        ExpectFocus(widthRow);
    }
    void GoDown(int rows, int expected) {
        for (int step = 0; step < rows; ++step) {
            PressKeys("Down");
        }
        ExpectFocus(expected);
    }
    void ExpectFocus(int row) {
        EXPECT_TRUE(WaitUntil([&] { return dialog.Look().At(X(453) + 16, RowY(row)) != dialogGray; }))
            << "row " << row << " does not get the focus";
    }
    // Types over the value of the focused row.
    void TypeValue(int row, const std::string& text) {
        TypeText(text);
        PressKeys("Return");
        ExpectInValue(row, modifiedYellow);
    }
    // Measures the focused row's distance from the origin, with points that are typed at the host's prompt.
    void Measure(const std::string& point) {
        PressKeys("alt+Return");
        const Window main = WaitForQuestion();
        ASSERT_TRUE(main.Activate());
        // What the two questions say differs after "Select ".
        const auto question = [&] {
            const Screenshot now = main.Look();
            std::vector<bool> shown;
            for (int y = now.Height() - 50; y < now.Height() - 30; ++y) {
                for (int x = 60; x < 140; ++x) {
                    shown.push_back(now.At(x, y) == labelBlue);
                }
            }
            return shown;
        };
        const std::vector<bool> first = question();
        TypeText("0,0");
        PressKeys("Return");
        ASSERT_TRUE(WaitUntil([&] {
            const std::vector<bool> now = question();
            return now != first && now != std::vector<bool>(now.size(), false);
        })) << "the second point is not asked for";
        TypeText(point);
        PressKeys("Return");
        ASSERT_TRUE(WaitUntil([this] { return dialog.IsOpen(); })) << "the dialog did not come back";
        LookWhenPainted();
        ASSERT_TRUE(dialog.Activate());
    }
    bool WorkingHas(const std::string& line) const {
        return ("\n" + host.Read("door_TMP.TXT")).find("\n" + line + "\r\n") != std::string::npos;
    }
};

TEST_F(KeyboardAlone, ADoorIsFilledInTypedAndMeasured) {
    Open();
    GoToFirstRow();
    ASSERT_NO_FATAL_FAILURE(Measure("300,400"));
    ExpectInValue(widthRow, modifiedYellow);
    GoDown(2, wallRow);
    TypeValue(wallRow, "325");
    GoDown(4, leavesRow);
    TypeValue(leavesRow, "2");
    GoDown(2, angleRow);
    TypeValue(angleRow, "82.5");
    PressKeys("Return");
    EXPECT_EQ(Answer(), "0");
    for (const char* const line : {"#1 = 500", "#3 = 325", "$7 = 2", "#9 = 82.5"}) {
        EXPECT_TRUE(WorkingHas(line)) << line << '\n' << host.Read("door_TMP.TXT");
    }
}

TEST_F(KeyboardAlone, F2OpensTheTextAndEscapeClosesFirstTheEditThenTheDialog) {
    Open();
    GoToFirstRow();
    PressKeys("F2 End");
    TypeText("1");
    PressKeys("Return");
    ExpectInValue(widthRow, modifiedYellow);
    TypeText("7");
    PressKeys("Escape");
    PressKeys("Escape");
    EXPECT_EQ(Answer(), "nil");
}

// From the choice to the drawing.
TEST_F(KeyboardAlone, AVariantIsChosenByItsDigitAndDrawn) {
    UseSamples();
    Call("door");
    const Window choice = Window::WithoutTitle("devhost.exe");
    ASSERT_TRUE(choice.IsValid()) << host.Errors();
    choice.LookWhenStill();
    choice.Press("2 Return");
    ExpectDialog("Porta a battente");
    PressKeys("Return");
    ASSERT_TRUE(WaitForQuestion().Activate());
    TypeText("0,0");
    PressKeys("Return");
    EXPECT_EQ(host.Wait(), 0) << host.Errors() << host.Output();
    EXPECT_NE(host.Read("samples/door/door_TMP.TXT").find("$7 = 2\r\n"), std::string::npos)
        << "the second variant has two leaves";
    EXPECT_FALSE(host.Read("drawing.svg").empty());
}

TEST_F(KeyboardAlone, APreviewIsConfirmedWithEnterAndLeftWithEscape) {
    UseSamples();
    for (const auto& [key, answer] : {std::pair("Return", "0"), std::pair("Escape", "nil")}) {
        host.Start({"--search", "samples/door", "--eval", R"((tavrinprevmask "door_preview"))"});
        const Window preview = Window::WithoutTitle("devhost.exe");
        ASSERT_TRUE(preview.IsValid()) << host.Errors();
        preview.LookWhenStill();
        preview.Press(key);
        EXPECT_EQ(Answer(), answer) << key;
    }
}

class GalleryByKeyboard : public GalleryWindow {};

TEST_F(GalleryByKeyboard, AListABooleanAndATextAreChanged) {
    ASSERT_NO_FATAL_FAILURE(Open());
    // The header and five rows of "Basics", the header of "Choices", and its first row.
    PressKeys("Down Down Down Down Down Down Down Down");
    const Window list = Window::OpenedBy([] { PressKeys("F4"); }, "gridgallery.exe");
    ASSERT_TRUE(list.IsValid());
    PressKeys("Down Return");
    ExpectChanges({"Swing = Both ways"});
    PressKeys("Down Down space");
    ExpectChanges({"Swing = Both ways", "Glazed = False"});
    PressKeys("Home Down");
    Type("Ash door");
    PressKeys("Return");
    CloseExpecting({"Swing = Both ways", "Glazed = False", "Name = Ash door"});
}

}  // namespace
