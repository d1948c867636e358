#include "tests/windows/imagedlg/ChoiceFixture.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "tests/windows/imagedlg/PngFile.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);

// 0xRRGGBB by the number of the choice.
constexpr std::array<unsigned, 6> slideColors = {0xE00000, 0x00A000, 0x0000E0, 0xC0C000, 0x00C0C0, 0xC000C0};
constexpr unsigned logoColor = 0x404080;
constexpr unsigned emptyColor = 0xA0A0A0;

COLORREF AsColorRef(unsigned rgb) {
    return RGB(rgb >> 16, rgb >> 8 & 0xFF, rgb & 0xFF);
}

std::string PlainPicture(unsigned color) {
    constexpr int size = 64;
    return PngFile(size, size, std::vector<unsigned>(size * size, color));
}

char NameOf(COLORREF color) {
    for (size_t number = 0; number < slideColors.size(); ++number) {
        if (color == AsColorRef(slideColors[number])) {
            return static_cast<char>('0' + number);
        }
    }
    if (color == CLR_INVALID) {
        return ' ';
    }
    return color == AsColorRef(logoColor)    ? 'L'
           : color == AsColorRef(emptyColor) ? 'E'
           : color == white                  ? '.'
                                             : '?';
}

// What five pixels across an edge of a cell show: one outside the frame, three of the frame, one inside.
char BandAcross(const CClientPixels& pixels, POINT start, POINT step, COLORREF background) {
    std::array<COLORREF, 5> line;
    for (int index = 0; index < 5; ++index) {
        line[static_cast<size_t>(index)] = pixels.At(start.x + index * step.x, start.y + index * step.y);
    }
    if (std::find(line.begin(), line.end(), CLR_INVALID) != line.end()) {
        return ' ';
    }
    if (line[0] != background || line[1] != line[2] || line[2] != line[3]) {
        return '?';
    }
    if (line[1] == background) {
        return '-';
    }
    // Not wider than three pixels.
    if (line[3] == line[4]) {
        return '?';
    }
    return line[1] == black ? 'B' : line[1] == white ? 'W' : '?';
}

char FrameAround(const CClientPixels& pixels, const RECT& cell, COLORREF background) {
    // Near the upper left corner no button ever stands.
    const int eighth = (cell.right - cell.left) / 8;
    const int y = cell.top + (cell.bottom - cell.top) / 16;
    std::set<char> bands = {BandAcross(pixels, {cell.left + eighth, cell.top - 4}, {0, 1}, background),
                            BandAcross(pixels, {cell.left + 2 * eighth, cell.top - 4}, {0, 1}, background),
                            BandAcross(pixels, {cell.left - 4, y}, {1, 0}, background)};
    if (cell.bottom < pixels.Height()) {
        bands.insert(BandAcross(pixels, {cell.right + 3, y}, {-1, 0}, background));
        bands.insert(BandAcross(pixels, {cell.left + eighth, cell.bottom + 3}, {0, -1}, background));
    }
    bands.erase(' ');
    return bands.empty() ? ' ' : bands.size() == 1 ? *bands.begin() : '?';
}

}  // namespace

CChoiceFixture::CChoiceFixture() {
    fakeHost = {};
    fakeHost.searchFolders = {m_folder.Path(L"")};
}

void CChoiceFixture::WriteSlide(int number, const std::wstring& ending) const {
    m_folder.Write(L"c" + std::to_wstring(number) + ending,
                   PlainPicture(slideColors[static_cast<size_t>(number) % slideColors.size()]));
}

void CChoiceFixture::WriteSlides(int count) const {
    for (int number = 0; number < count; ++number) {
        WriteSlide(number);
    }
    m_folder.Write(L"logo.png", PlainPicture(logoColor));
    m_folder.Write(L"empty.png", PlainPicture(emptyColor));
}

void CChoiceFixture::Fill(CTavrinSelMaskDlg& dialog, int count) {
    dialog.SetArguments(L"Other", 0);
    for (int number = 0; number < count; ++number) {
        dialog.AddChoice((L"c" + std::to_wstring(number)).c_str());
    }
    dialog.LoadSlides();
}

INT_PTR CChoiceFixture::Run(CTavrinSelMaskDlg& dialog, int count, const CModalDriver::Step& step) {
    Fill(dialog, count);
    m_driver.Then(step);
    return dialog.DoModal();
}

void CChoiceFixture::RunPainted(int count, const std::function<void(CTavrinSelMaskDlg&)>& look) {
    WriteSlides(count);
    CTavrinSelMaskDlg dialog;
    Run(dialog, count, [&](HWND window) {
        EXPECT_TRUE(WaitForFrame(window, 1)) << count;
        look(dialog);
        PressCloseBox(window);
    });
}

HWND CellOf(HWND dialog, int cell) {
    return GetDlgItem(dialog, IDC_CHOICE_CELL1 + cell - 1);
}

RECT RectOf(HWND dialog, HWND control) {
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

std::string ShownIn(HWND dialog) {
    const CClientPixels pixels(dialog);
    std::string shown;
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        // A point that is in the window whenever a part of the cell is, and where no button stands.
        const RECT rect = RectOf(dialog, CellOf(dialog, cell));
        shown += NameOf(pixels.At(rect.left + (rect.right - rect.left) / 8, rect.top + 12));
    }
    return shown;
}

std::string FramesIn(HWND dialog, COLORREF background) {
    const CClientPixels pixels(dialog);
    std::string frames;
    for (int cell = 1; cell <= kChoiceCells; ++cell) {
        frames += FrameAround(pixels, RectOf(dialog, CellOf(dialog, cell)), background);
    }
    return frames;
}

bool WaitForFrame(HWND dialog, int cell) {
    return PumpUntil([&] { return FramesIn(dialog, white)[static_cast<size_t>(cell - 1)] == 'B'; });
}
