// Picture files of every kind, and names of every kind, in the cells of the choice dialog.
#include <gtest/gtest.h>

#include "tests/windows/imagedlg/ChoiceFixture.h"
#include "tests/windows/imagedlg/PngFile.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

// Left half red, right half blue.
std::string TwoColors(EPngForm form) {
    constexpr int size = 16;
    std::vector<unsigned> pixels;
    for (int pixel = 0; pixel < size * size; ++pixel) {
        pixels.push_back(pixel % size < size / 2 ? 0xFF0000 : 0x0000FF);
    }
    return PngFile(size, size, pixels, form);
}

class PictureFiles : public CChoiceFixture {
protected:
    // Shows the file as the only choice and looks at its cell's pixels, in client coordinates of the cell.
    void Show(const std::string& bytes, const std::function<void(const CClientPixels&)>& look) {
        m_folder.Write(L"p_t.png", bytes);
        CTavrinSelMaskDlg dialog;
        dialog.SetArguments(L"", 0);
        ASSERT_TRUE(dialog.AddChoice(L"p"));
        dialog.LoadSlides();
        m_driver.Then([&](HWND window) {
            EXPECT_TRUE(WaitForFrame(window, 1));
            PumpMessages();
            look(CClientPixels(CellOf(window, 1)));
            // The dialog goes on working.
            PressButton(window, IDOK);
        });
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }

    void ExpectEmpty(const std::string& bytes) {
        Show(bytes, [](const CClientPixels& pixels) {
            const RECT all = {0, 0, pixels.Width(), pixels.Height()};
            EXPECT_EQ(pixels.Count(all, white), pixels.Width() * pixels.Height());
        });
    }

    void ExpectTwoColors(const std::string& bytes) {
        Show(bytes, [](const CClientPixels& pixels) {
            const int quarter = pixels.Width() / 4;
            EXPECT_EQ(pixels.At(quarter, pixels.Height() / 2), RGB(255, 0, 0));
            EXPECT_EQ(pixels.At(pixels.Width() - quarter, pixels.Height() / 2), RGB(0, 0, 255));
        });
    }
};

TEST_F(PictureFiles, AnEmptyFileLeavesTheCellEmpty) {
    ExpectEmpty("");
}

TEST_F(PictureFiles, AFileThatIsNoPictureLeavesTheCellEmpty) {
    ExpectEmpty(std::string(100000, 'x'));
    ExpectEmpty("\x89PNG\r\n\x1a\n");
    ExpectEmpty(std::string("\x89PNG\r\n\x1a\n") + std::string(64, '\0'));
}

TEST_F(PictureFiles, APictureCutOffAnywhereDoesNoHarm) {
    const std::string whole = TwoColors(EPngForm::Rgb8);
    for (size_t size = 1; size < whole.size(); size += whole.size() / 7) {
        Show(whole.substr(0, size), [](const CClientPixels&) {});
    }
    ExpectEmpty(whole.substr(0, 30));
}

TEST_F(PictureFiles, APictureWithDamagedBytesDoesNoHarm) {
    const std::string whole = TwoColors(EPngForm::Palette);
    for (size_t position = 8; position < whole.size(); position += whole.size() / 7) {
        std::string damaged = whole;
        damaged[position] = static_cast<char>(~damaged[position]);
        Show(damaged, [](const CClientPixels&) {});
    }
}

TEST_F(PictureFiles, OnePixelFillsTheCell) {
    Show(PngFile(1, 1, {0xFF0000}), [](const CClientPixels& pixels) {
        const COLORREF middle = pixels.At(pixels.Width() / 2, pixels.Height() / 2);
        EXPECT_EQ(GetRValue(middle), 255);
        EXPECT_LT(GetGValue(middle), 255);
    });
}

TEST_F(PictureFiles, SixteenBitsPerColourAreDrawn) {
    ExpectTwoColors(TwoColors(EPngForm::Rgb16));
}

TEST_F(PictureFiles, APaletteIsDrawn) {
    ExpectTwoColors(TwoColors(EPngForm::Palette));
}

TEST_F(PictureFiles, AnInterlacedPictureIsDrawn) {
    ExpectTwoColors(TwoColors(EPngForm::Interlaced));
}

// Whether there is memory to decode it depends on the machine; it is drawn or the cell stays empty.
TEST_F(PictureFiles, AnEnormousPictureIsDrawnOrLeavesTheCellEmpty) {
    Show(HugePngFile(10000, 0xFF0000), [](const CClientPixels& pixels) {
        const COLORREF middle = pixels.At(pixels.Width() / 2, pixels.Height() / 2);
        EXPECT_TRUE(middle == RGB(255, 0, 0) || middle == white) << std::hex << middle;
    });
}

TEST_F(PictureFiles, APictureLargerThanAnyMemoryLeavesTheCellEmpty) {
    std::string bytes = HugePngFile(100, 0xFF0000);
    // Width and height of the header, which its checksum no longer fits.
    bytes.replace(16, 8, "\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF");
    ExpectEmpty(bytes);
}

// Every character that a file name may hold, in names short enough for every file system.
TEST_F(PictureFiles, NamesMayHoldEveryCharacterOfAFileName) {
    const std::wstring forbidden = L"<>:\"/\\|?*";
    const std::string picture = TwoColors(EPngForm::Rgb8);
    std::wstring name;
    CTavrinSelMaskDlg dialog;
    dialog.SetArguments(L"", 0);
    const auto take = [&] {
        m_folder.Write(name + L"_t.png", picture);
        EXPECT_TRUE(dialog.AddChoice(name.c_str())) << std::hex << static_cast<unsigned>(name[0]);
        const CString path = dialog.GetSlidePath(name.c_str());
        EXPECT_EQ(path, m_folder.Path(name + L"_t.png").c_str());
        CPictureCtrl cell;
        EXPECT_TRUE(cell.LoadFromFile(path)) << std::hex << static_cast<unsigned>(name[0]);
        DeleteFileW(path);
        name.clear();
    };
    for (unsigned character = 0x20; character <= 0xFFFD; ++character) {
        const bool halfOfAPair = character >= 0xD800 && character <= 0xDFFF;
        if (!halfOfAPair && forbidden.find(static_cast<wchar_t>(character)) == std::wstring::npos) {
            name += static_cast<wchar_t>(character);
        }
        if (name.size() == 70) {
            take();
        }
    }
    name += L"\U0001F6AA";
    take();
    EXPECT_GT(dialog.GetCount(), 800U);
}

TEST_F(PictureFiles, APathTooLongForTheSearchIsNotFound) {
    CTavrinSelMaskDlg dialog;
    dialog.SetArguments(L"", 0);
    const size_t longest = 253 - m_folder.Path(L"_t.png").size();
    for (const size_t length : {longest, longest + 1}) {
        const std::wstring name(length, L'n');
        m_folder.Write(name + L"_t.png", TwoColors(EPngForm::Rgb8));
        EXPECT_EQ(dialog.AddChoice(name.c_str()), length == longest) << length;
    }
}

}  // namespace
