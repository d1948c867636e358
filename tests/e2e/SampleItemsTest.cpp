// The sample items from the first dialog to the drawing.
#include <filesystem>

#include "tests/e2e/ItemRun.h"
#include "tests/e2e/Programs.h"

namespace {

class SampleItems : public ItemRun {
protected:
    void SetUp() override { UseSamples(); }
    std::string Template(const std::string& item) const {
        return host.Read("samples/" + item + "/" + item + ".TXT");
    }
};

TEST_F(SampleItems, ADoorOfTwoLeavesIsDrawnWithTheWidthThatWasTyped) {
    Call("door");
    Choose(1, 0, 3, 2);
    ExpectDialog("Porta a battente");
    Type(0, "812.5");
    Type(8, "60");
    PlaceAt("100,50");
    const SvgDrawing drawing = Drawing();
    EXPECT_EQ(drawing.Boxes(812.5, 2100), 2) << "the leaves in elevation";
    EXPECT_EQ(drawing.Arcs(812.5), 2) << "their opening in plan";
    // The variant's number of leaves stood in the dialog, and OK has kept what was typed.
    EXPECT_NE(Template("door").find("$1 = \"<<1501>>\"D812.5\r\n"), std::string::npos);
    EXPECT_NE(Template("door").find("$7 = \"<<1507>>\"I2\r\n"), std::string::npos);
}

TEST_F(SampleItems, ATiltWindowIsDrawnWithTheWidthThatWasTyped) {
    Call("window");
    Choose(1, 0, 3, 2);
    ExpectDialog("Finestra");
    Type(0, "1510");
    PlaceAt("0,0");
    const SvgDrawing drawing = Drawing();
    EXPECT_EQ(drawing.Boxes(1510, 1400), 1) << "the frame in elevation";
    EXPECT_EQ(drawing.Boxes(700, 1290), 2) << "its sashes";
    EXPECT_EQ(drawing.Arcs(700), 0) << "a tilted sash turns about its lower edge";
}

TEST_F(SampleItems, AStaircaseWithAHalfTurnHasTheStepsThatWereTyped) {
    Call("staircase");
    Choose(1, 1, 2, 2);
    ExpectDialog("Scala");
    Type(1, "20");
    Type(2, "260");
    PlaceAt("0,0");
    const SvgDrawing drawing = Drawing();
    EXPECT_EQ(drawing.Boxes(285, 40), 18) << "treads in section: going and nosing";
    EXPECT_EQ(drawing.Boxes(1000, 1000 + 1000 + 150), 1) << "the landing in plan";
}

TEST_F(SampleItems, TheBuildPutsEveryItemBesideTheHost) {
    int files = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(SAMPLES_DIR)) {
        const std::filesystem::path& path = file.path();
        if (path.extension() != ".lsp" && path.extension() != ".png" && path.extension() != ".TXT") {
            continue;
        }
        ++files;
        EXPECT_TRUE(std::filesystem::exists(ProgramFolder() / "samples" /
                                            std::filesystem::relative(path, SAMPLES_DIR)))
            << path;
    }
    EXPECT_GT(files, 20);
}

TEST_F(SampleItems, CancelInTheItemDialogDrawsNothing) {
    Call("window");
    Choose(0, 0, 3, 2);
    ExpectDialog("Finestra");
    PressCancel();
    EXPECT_TRUE(Drawing().IsEmpty());
}

}  // namespace
