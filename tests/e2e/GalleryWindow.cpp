#include "tests/e2e/GalleryWindow.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "tests/e2e/Programs.h"

namespace fs = std::filesystem;

GalleryWindow::GalleryWindow() {
    const fs::path folder = run.Folder() / "program";
    fs::create_directory(folder);
    fs::copy_file(ProgramFolder() / "GridGallery.exe", folder / "GridGallery.exe");
    fs::copy_file(ProgramFolder() / "checked" / "TD_Alloc.dll", folder / "TD_Alloc.dll");
    run.UseProgram(folder / "GridGallery.exe");
}

void GalleryWindow::Open() {
    run.StartProgram({});
    gallery = Window::WithTitle("Grid gallery");
    ASSERT_TRUE(gallery.IsValid()) << run.Errors();
    // The window manager gives it the focus some time after it was shown.
    ASSERT_TRUE(gallery.Activate());
    gallery.LookWhenStill();
    ReadRectangles();
}

void GalleryWindow::ReadRectangles() {
    const auto ends = [this] {
        const std::vector<std::string> lines = Lines();
        return std::count(lines.begin(), lines.end(), "rectangles end");
    };
    // A key may come before Wine knows that the window has the focus: it is pressed again. Not soon: the
    // first one may only be late, and a second list would be taken for a later one.
    const auto before = ends();
    ASSERT_TRUE(WaitUntil([&] {
        PressKeys("F1");
        return WaitUntil([&] { return ends() > before; }, 8);
    })) << "the gallery did not print its rectangles";
    cells.clear();
    cellOrder.clear();
    const std::vector<std::string> all = Lines();
    // The last list counts.
    const auto last = std::find(std::next(all.rbegin()), all.rend(), "rectangles end").base();
    for (const std::string& line : std::vector<std::string>(last, all.end())) {
        std::istringstream words(line);
        std::string word;
        words >> word;
        Cell cell{};
        if (word == "rectangle" && words >> cell.left >> cell.top >> cell.right >> cell.bottom) {
            std::getline(words >> std::ws, word);
            cells[word] = cell;
        }
    }
    for (const auto& [name, cell] : cells) {
        cellOrder.push_back(name);
    }
    std::sort(cellOrder.begin(), cellOrder.end(),
              [this](const auto& one, const auto& other) { return cells[one].top < cells[other].top; });
}

void GalleryWindow::ClickValue(const std::string& name) const {
    const Cell& cell = cells.at(name);
    gallery.Click(cell.MiddleX(), cell.MiddleY());
}

void GalleryWindow::DoubleClickValue(const std::string& name) const {
    const Cell& cell = cells.at(name);
    gallery.DoubleClick(cell.MiddleX(), cell.MiddleY());
}

Window GalleryWindow::OpenDialog(const std::string& name, const std::string& title) const {
    EXPECT_TRUE(gallery.Activate());
    DoubleClickValue(name);
    Window dialog = Window::WithTitle(title);
    EXPECT_TRUE(dialog.IsValid()) << "no dialog for " << name;
    if (dialog.IsValid() && dialog.Activate()) {
        dialog.LookWhenStill();
    }
    return dialog;
}

Window GalleryWindow::DropDown(const std::string& name) const {
    return Window::OpenedBy([&] { ClickValue(name); }, "gridgallery.exe");
}

void GalleryWindow::PressKeys(const std::string& keys) {
    OutputOf("xdotool key " + keys);
}

void GalleryWindow::Type(const std::string& text) {
    OutputOf("xdotool type --delay 8 -- '" + text + "'");
}

void GalleryWindow::TypeOver(const std::string& text) {
    PressKeys("ctrl+a");
    Type(text);
}

std::vector<std::string> GalleryWindow::Lines() const {
    std::istringstream output(run.Output());
    std::vector<std::string> lines;
    for (std::string line; std::getline(output, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> GalleryWindow::Changes() const {
    std::vector<std::string> lines = Lines();
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("rectangle"); });
    return lines;
}

void GalleryWindow::ExpectChanges(const std::vector<std::string>& changes) const {
    WaitUntil([&] { return Changes().size() >= changes.size(); });
    EXPECT_EQ(Changes(), changes);
}

void GalleryWindow::CloseExpecting(const std::vector<std::string>& changes) {
    ExpectChanges(changes);
    EXPECT_TRUE(gallery.PressUntilClosed("Escape"));
    EXPECT_EQ(run.Wait(), 0) << run.Errors();
    EXPECT_EQ(Changes(), changes);
    EXPECT_EQ(run.Errors().find("heap check"), std::string::npos) << run.Errors();
}
