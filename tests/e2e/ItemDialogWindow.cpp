#include "tests/e2e/ItemDialogWindow.h"

void ItemDialogWindow::Open(const std::string& call, int units, int precision) {
    host.UseSample("door");
    host.Start({"--check-heap", "--lunits", std::to_string(units), "--luprec", std::to_string(precision),
                "--eval", call});
    dialog = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(dialog.IsValid()) << host.Errors();
    ASSERT_TRUE(dialog.Activate());
    LookWhenPainted();
}

// The height of the grid's first row: its bottom line has the header's grey. 0 when there is no line.
int ItemDialogWindow::FindRowHeight() const {
    for (int y = Y(18) + 2; y < Y(18) + 100; ++y) {
        if (screen.At(RowEnd() - 3, y) == headerGray) {
            return y - Y(18);
        }
    }
    return 0;
}

void ItemDialogWindow::LookWhenPainted() {
    EXPECT_TRUE(WaitUntil([this] {
        screen = dialog.Look();
        m_rowHeight = FindRowHeight();
        return screen.At(X(643), Y(9)) == headerGray && m_rowHeight > 0;
    })) << "the header or the grid's rows were never drawn";
}

bool ItemDialogWindow::ValueShows(int row, Rgb color) const {
    const Screenshot now = dialog.Look();
    for (int y = RowY(row) - m_rowHeight / 2; y < RowY(row) + m_rowHeight / 2; ++y) {
        for (int x = X(453) + 211; x < RowEnd(); ++x) {
            if (now.At(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

void ItemDialogWindow::ExpectInValue(int row, Rgb color) const {
    if (!WaitUntil([&] { return ValueShows(row, color); })) {
        FailWithScreen("row " + std::to_string(row) + " does not have the colour, the dialog is " +
                       (dialog.IsOpen() ? "open" : "closed"));
    }
}

void ItemDialogWindow::Type(int row, const std::string& text) const {
    ClickValue(row);
    PressKeys("Home");
    PressKeys("shift+End");
    TypeText(text);
}

Window ItemDialogWindow::WaitForQuestion() const {
    EXPECT_TRUE(WaitUntil([this] { return !dialog.IsOpen(); }))
        << "the dialog was not hidden for picking in the drawing";
    const Window main = Window::WithTitle("DevHost");
    // The question is longer than the idle prompt's label, which has its colour.
    const auto isAsked = [&] {
        const Screenshot now = main.Look();
        for (int y = now.Height() - 50; y < now.Height() - 30; ++y) {
            for (int x = 60; x < 140; ++x) {
                if (now.At(x, y) == labelBlue) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(main.IsValid() && WaitUntil(isAsked)) << "the host asks nothing";
    return main;
}

std::string ItemDialogWindow::Answer() {
    EXPECT_EQ(host.Wait(), 0) << host.Errors() << host.Output();
    return host.Answer();
}
