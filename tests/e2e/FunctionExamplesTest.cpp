// The worked examples of the three LISP functions: each routine of docs/examples/functions runs in a folder
// with its pictures and the template of the first example, on the texts of the examples, with UI
// automation.
#include <filesystem>

#include "tests/e2e/ItemDialogWindow.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

class FunctionExample : public ItemDialogWindow {
protected:
    void SetUp() override {
        const fs::path program = host.Folder() / "program";
        fs::create_directory(program);
        for (const char* file : {"DevHost.exe", "TavrinWnd.dll", "TD_Alloc.dll"}) {
            fs::copy_file(ProgramFolder() / file, program / file);
        }
        fs::copy_file(ArchitectureFolder() / "tests/windows/docs/TavrinRes.dll", program / "TavrinRes.dll");
        host.UseProgram(program / "DevHost.exe");
        fs::copy(examples / "functions", host.Folder());
        fs::copy_file(examples / "template/first/before.TXT", host.Folder() / "shelf.TXT");
    }

    void Run(const std::string& name) {
        host.Start({"--lunits", "2", "--luprec", "2", "--script", name + ".lsp"});
    }

    // The dialog without a title that is open now.
    Window Untitled() const {
        Window window = Window::WithoutTitle("devhost.exe");
        EXPECT_TRUE(window.IsValid()) << host.Errors();
        window.LookWhenStill();
        return window;
    }

    void ExpectPrinted(const std::string& name) {
        EXPECT_EQ(host.Wait(), 0) << host.Errors();
        EXPECT_EQ(host.Output(), host.Read(name + ".txt"));
    }

    const fs::path examples = EXAMPLES_DIR;
};

TEST_F(FunctionExample, ItemReadsBackWhatTheUserTyped) {
    Run("item");
    dialog = Window::WithTitle("Bookshelf");
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    LookWhenPainted();
    constexpr int shelvesRow = 2;
    Type(shelvesRow, "6");
    PressOk();
    ExpectPrinted("item");
    EXPECT_EQ(host.Read("shelf.TXT"), host.Read("item-template.TXT"));
}

// First the second of two slides with a double click, then the only flat one with OK.
TEST_F(FunctionExample, ChoiceGivesTheNameOfTheSlide) {
    Run("choice");
    const Window both = Untitled();
    const Screenshot screen = both.Look();
    both.DoubleClick(screen.Width() * 3 / 4, screen.Height() / 3);
    EXPECT_TRUE(WaitUntil([&] { return !both.IsOpen(); }));
    EXPECT_TRUE(Untitled().PressUntilClosed("Return"));
    ExpectPrinted("choice");
}

TEST_F(FunctionExample, PreviewIsClosedWithEnter) {
    Run("preview");
    EXPECT_TRUE(Untitled().PressUntilClosed("Return"));
    ExpectPrinted("preview");
}

}  // namespace
