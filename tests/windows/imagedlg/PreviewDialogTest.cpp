// The preview dialog: its position, its picture, how it ends.
#include <gtest/gtest.h>

#include "imagedlg/TavrinPreviewDlg.h"
#include "tests/windows/imagedlg/PngFile.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::imagedlg;

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

class PreviewDialog : public testing::Test {
protected:
    PreviewDialog() {
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
        // Red at the left, blue at the right.
        std::vector<unsigned> pixels;
        for (int pixel = 0; pixel < 64 * 64; ++pixel) {
            pixels.push_back(pixel % 64 < 32 ? 0xFF0000 : 0x0000FF);
        }
        m_folder.Write(L"two.png", PngFile(64, 64, pixels));
    }

    INT_PTR Run(const std::wstring& name, const CModalDriver::Step& step) {
        CTavrinPreviewDlg dialog;
        dialog.SetName(name.c_str());
        m_driver.Then(step);
        return dialog.DoModal();
    }

    CTempFolder m_folder;
    CModalDriver m_driver;
};

// Waits until the window shows nothing but its background.
bool IsEmpty(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return PumpUntil([&] {
        return CClientPixels(window).Count(client, GetSysColor(COLOR_3DFACE)) == client.right * client.bottom;
    });
}

TEST_F(PreviewDialog, StandsInTheCornerOfTheScreenInItsOwnSize) {
    Run(L"two", [](HWND window) {
        RECT rect;
        GetWindowRect(window, &rect);
        EXPECT_EQ(rect.left, 100);
        EXPECT_EQ(rect.top, 5);
        RECT size = {0, 0, 467, 304};
        MapDialogRect(window, &size);
        RECT client;
        GetClientRect(window, &client);
        EXPECT_EQ(client.right, size.right);
        EXPECT_EQ(client.bottom, size.bottom);
        PressCloseBox(window);
    });
}

TEST_F(PreviewDialog, StandsThereWhateverOwnsIt) {
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, CRect(400, 300, 1200, 900),
                   nullptr, 0);
    CTavrinPreviewDlg dialog(&owner);
    m_driver.Then([](HWND window) {
        RECT rect;
        GetWindowRect(window, &rect);
        EXPECT_EQ(rect.left, 100);
        EXPECT_EQ(rect.top, 5);
        PressCloseBox(window);
    });
    dialog.DoModal();
    owner.DestroyWindow();
}

TEST_F(PreviewDialog, StretchesThePictureOverItsCell) {
    Run(L"two", [](HWND window) {
        RECT cell = {7, 7, 460, 297};
        MapDialogRect(window, &cell);
        EXPECT_TRUE(
            PumpUntil([&] { return CClientPixels(window).At(cell.left + 20, cell.top + 20) == red; }));
        const CClientPixels pixels(window);
        const int quarter = (cell.right - cell.left) / 4;
        for (const int y : {cell.top + 20, (cell.top + cell.bottom) / 2, cell.bottom - 20}) {
            EXPECT_EQ(pixels.At(cell.left + 20, y), red) << y;
            EXPECT_EQ(pixels.At(cell.left + quarter, y), red) << y;
            EXPECT_EQ(pixels.At(cell.right - quarter, y), blue) << y;
            EXPECT_EQ(pixels.At(cell.right - 20, y), blue) << y;
        }
        EXPECT_EQ(pixels.At(cell.left - 2, cell.top + 20), GetSysColor(COLOR_3DFACE));
        PressCloseBox(window);
    });
}

TEST_F(PreviewDialog, LooksForTheNameWithItsExtension) {
    Run(L"folder/two", [](HWND window) { PressCloseBox(window); });
    EXPECT_EQ(fakeHost.searched, std::vector<std::wstring>{L"folder/two.png"});
}

TEST_F(PreviewDialog, EnterEndsItWithOk) {
    EXPECT_EQ(Run(L"two", [](HWND window) { PressKey(window, VK_RETURN); }), IDOK);
}

TEST_F(PreviewDialog, EscapeAndTheCloseBoxEndItWithCancel) {
    EXPECT_EQ(Run(L"two", [](HWND window) { PressKey(window, VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(Run(L"two", [](HWND window) { PressCloseBox(window); }), IDCANCEL);
}

TEST_F(PreviewDialog, IsEmptyWithoutThePictureAndSaysNothing) {
    EXPECT_EQ(Run(L"missing",
                  [](HWND window) {
                      EXPECT_TRUE(IsEmpty(window));
                      PressKey(window, VK_RETURN);
                  }),
              IDOK);
}

TEST_F(PreviewDialog, IsEmptyForAFileThatCannotBeDrawn) {
    const std::string whole = PngFile(64, 64, std::vector<unsigned>(64 * 64, 0xFF0000));
    m_folder.Write(L"nothing.png", "");
    m_folder.Write(L"text.png", std::string(3000, 'x'));
    m_folder.Write(L"header.png", whole.substr(0, 20));
    for (const wchar_t* name : {L"nothing", L"text", L"header"}) {
        Run(name, [&](HWND window) {
            EXPECT_TRUE(IsEmpty(window)) << name;
            PressCloseBox(window);
        });
    }
}

TEST_F(PreviewDialog, TakesANameOfAnyLength) {
    for (const size_t length : {0U, 253U, 254U, 255U, 1000U, 40000U}) {
        const std::wstring name(length, L'n');
        EXPECT_EQ(Run(name,
                      [](HWND window) {
                          EXPECT_TRUE(IsEmpty(window));
                          PressKey(window, VK_RETURN);
                      }),
                  IDOK);
        EXPECT_EQ(fakeHost.searched.back(), name + L".png");
    }
}

TEST_F(PreviewDialog, LeavesNoHandleAndNoBlockBehind) {
    const auto cycle = [&](const wchar_t* name) {
        m_driver.Forget();
        Run(name, [](HWND window) {
            PumpMessages();
            PressCloseBox(window);
        });
        m_driver.Forget();
        fakeHost.searched = {};
    };
    cycle(L"two");
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 40; ++round) {
        cycle(round % 2 == 0 ? L"two" : L"missing");
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
