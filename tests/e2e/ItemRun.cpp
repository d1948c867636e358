#include "tests/e2e/ItemRun.h"

#include <filesystem>

void ItemRun::UseSamples() const {
    std::filesystem::copy(SAMPLES_DIR, host.Folder() / "samples", std::filesystem::copy_options::recursive);
}

void ItemRun::Call(const std::string& item, const std::string& items) {
    host.Start({"--check-heap", "--lunits", "2", "--luprec", "2", "--items", items, "--eval",
                "(load \"" + item + ".lsp\")", "--eval", "(" + item + ")", "--drawing", "drawing.svg"});
}

void ItemRun::Choose(int column, int row, int columns, int rows) const {
    const Window choice = Window::WithoutTitle("devhost.exe");
    ASSERT_TRUE(choice.IsValid()) << host.Errors();
    const Screenshot slides = choice.LookWhenStill();
    choice.DoubleClick(slides.Width() * (2 * column + 1) / (2 * columns),
                       slides.Height() * (2 * row + 1) / (2 * rows + (rows == 1 ? 1 : 0)));
    EXPECT_TRUE(WaitUntil([&] { return !choice.IsOpen(); }));
}

void ItemRun::ExpectDialog(const std::string& title) {
    dialog = Window::WithTitle(title);
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    ASSERT_TRUE(dialog.Activate());
    LookWhenPainted();
}

void ItemRun::PlaceAt(const std::string& point) {
    PressOk();
    ASSERT_TRUE(WaitForQuestion().Activate());
    TypeText(point);
    PressKeys("Return");
}

SvgDrawing ItemRun::Drawing() {
    EXPECT_EQ(host.Wait(), 0) << host.Errors() << host.Output();
    return SvgDrawing(host.Read("drawing.svg"));
}
