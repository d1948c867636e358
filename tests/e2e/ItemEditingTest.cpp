// Values of the sample door changed by the user: typed, picked in the drawing, or unchanged.
#include <algorithm>

#include "tests/e2e/ItemDialogWindow.h"

namespace {

// Rows of the door's grid.
constexpr int widthRow = 0;
constexpr int heightRow = 1;  // read-only in mode 1
constexpr int leavesRow = 6;
constexpr int angleRow = 8;

class ItemEditing : public ItemDialogWindow {
protected:
    // The line of a file that begins with `start`, without its line end; empty when there is none.
    std::string Line(const std::string& file, const std::string& start) const {
        const std::string text = "\n" + host.Read(file);
        const std::size_t at = text.find("\n" + start);
        return at == std::string::npos ? std::string() : text.substr(at + 1, text.find('\r', at) - at - 1);
    }
    std::string Working(const std::string& start) const { return Line("door_TMP.TXT", start); }
    std::string Template(const std::string& start) const { return Line("door.TXT", start); }
};

TEST_F(ItemEditing, ATypedRealReachesBothFiles) {
    Open();
    Type(angleRow, "82.5");
    PressKeys("Return");
    ExpectInValue(angleRow, modifiedYellow);
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#9"), "#9 = 82.5");
    EXPECT_EQ(Template("$9"), "$9 = \"<<1509>>\"R82.5");
}

TEST_F(ItemEditing, ATypedWholeNumberReachesBothFiles) {
    Open();
    Type(leavesRow, "2");
    PressKeys("Tab");
    ExpectInValue(leavesRow, modifiedYellow);
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("$7"), "$7 = 2");
    EXPECT_EQ(Template("$7"), "$7 = \"<<1507>>\"I2");
}

TEST_F(ItemEditing, OkTakesTextThatIsStillBeingTyped) {
    Open();
    Type(angleRow, "33");
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#9"), "#9 = 33");
}

TEST_F(ItemEditing, EscapeInTheEditRestoresTheValue) {
    Open();
    Type(angleRow, "33");
    PressKeys("Escape");
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#9"), "#9 = 75");
}

TEST_F(ItemEditing, CancelDiscardsTextThatIsBeingTyped) {
    Open();
    Type(angleRow, "33");
    PressCancel();
    EXPECT_EQ(Answer(), "nil");
    EXPECT_EQ(Template("$9"), "$9 = \"<<1509>>\"R 75");
}

TEST_F(ItemEditing, AReadOnlyRowOpensNoEdit) {
    Open();
    Type(heightRow, "1");
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#2"), "#2 = 2100");
}

TEST_F(ItemEditing, TextThatIsNoDistanceIsRejectedAndTheValueKept) {
    Open();
    Type(widthRow, "wide");
    PressKeys("Return");
    const Window box = Window::WithTitle("Invalid value");
    ASSERT_TRUE(box.IsValid());
    EXPECT_TRUE(box.PressUntilClosed("Return"));
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#1"), "#1 = 900");
}

TEST_F(ItemEditing, ADistanceIsPickedWithTwoClicksInTheDrawing) {
    Open();
    ClickValue(widthRow);
    ClickButton(widthRow);
    const Window drawing = WaitForQuestion();
    drawing.Click(100, 80);
    drawing.Click(400, 480);
    EXPECT_TRUE(WaitUntil([this] { return dialog.IsOpen(); })) << "the dialog did not reappear";
    LookWhenPainted();
    ExpectInValue(widthRow, modifiedYellow);
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#1"), "#1 = 500");
    EXPECT_EQ(Template("$1"), "$1 = \"<<1501>>\"D500");
}

TEST_F(ItemEditing, EscapeWhilePickingKeepsTheDistance) {
    Open();
    ClickValue(widthRow);
    ClickButton(widthRow);
    const Window drawing = WaitForQuestion();
    drawing.Click(100, 80);
    drawing.Press("Escape");
    EXPECT_TRUE(WaitUntil([this] { return dialog.IsOpen(); }));
    LookWhenPainted();
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#1"), "#1 = 900");
}

// A length as it is typed in each format of the drawing, and what the files keep of it.
struct TypedLength {
    const char* name;
    int units;
    const char* text;
    const char* value;
};

class TypedDistance : public ItemEditing, public testing::WithParamInterface<TypedLength> {};

TEST_P(TypedDistance, IsReadInTheDrawingsUnits) {
    Open(R"((tavrinwnd "door" 1.0 1))", GetParam().units, 4);
    Type(widthRow, GetParam().text);
    PressKeys("Return");
    ExpectInValue(widthRow, modifiedYellow);
    PressOk();
    EXPECT_EQ(Answer(), "0");
    EXPECT_EQ(Working("#1"), std::string("#1 = ") + GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Formats, TypedDistance,
                         testing::Values(TypedLength{"Scientific", 1, "1.25E+03", "1250"},
                                         TypedLength{"Decimal", 2, "812.5", "812.5"},
                                         TypedLength{"Engineering", 3, "3'-4.5\"", "40.5"},
                                         TypedLength{"Architectural", 4, "3'-4 1/2\"", "40.5"},
                                         TypedLength{"Fractional", 5, "35 3/4", "35.75"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
