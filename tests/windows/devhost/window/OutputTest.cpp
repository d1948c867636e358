// The output of the main window as it is seen.
#include "tests/windows/devhost/window/WindowFixture.h"
#include "tests/windows/support/Pixels.h"

using namespace tests;
using namespace devhost;

namespace {

constexpr COLORREF kErrorColor = RGB(176, 0, 32);

class Output : public CWindowFixture {
protected:
    HWND List() const { return Part(IDC_OUTPUT); }

    int LineHeight() const {
        const auto top = [this](int line) {
            const LRESULT first = SendMessageW(List(), EM_LINEINDEX, static_cast<WPARAM>(line), 0);
            return static_cast<short>(
                HIWORD(SendMessageW(List(), EM_POSFROMCHAR, static_cast<WPARAM>(first), 0)));
        };
        return top(1) - top(0);
    }

    // How many pixels of each line in sight, from the first, are red.
    std::vector<int> RedPixels(int lines) {
        Handle();
        UpdateWindow(List());
        const CClientPixels pixels(List());
        std::vector<int> red;
        for (int line = 0; line < lines; ++line) {
            red.push_back(pixels.Count({0, line * LineHeight(), pixels.Width(), (line + 1) * LineHeight()},
                                       kErrorColor));
        }
        return red;
    }
};

TEST_F(Output, ErrorsAreRed) {
    m_window.AddOutput(L"; error: HHHH");
    m_window.AddOutput(L"HHHH; error: HHHH");
    m_window.AddOutput(L"; error: HHHH");
    m_window.AddOutput(L"HHHH");
    const std::vector<int> red = RedPixels(4);
    EXPECT_GT(red[0], 20);
    EXPECT_EQ(red[1], 0);
    EXPECT_EQ(red[2], red[0]);
    EXPECT_EQ(red[3], 0);
}

TEST_F(Output, AnErrorOfSeveralRowsIsRedAsAWholeAfterScrollingToo) {
    std::wstring words;
    for (int word = 0; word < 600; ++word) {
        words += L" HHHH";
    }
    m_window.AddOutput(L"; error:" + words);
    m_window.AddOutput(L"HHHH");
    SendMessageW(List(), EM_LINESCROLL, 0, -100);
    ASSERT_GT(SendMessageW(List(), EM_GETLINECOUNT, 0, 0), 5);
    for (const int scrolled : {0, 2}) {
        SendMessageW(List(), EM_LINESCROLL, 0, scrolled);
        EXPECT_EQ(SendMessageW(List(), EM_GETFIRSTVISIBLELINE, 0, 0), scrolled);
        const std::vector<int> red = RedPixels(2);
        EXPECT_GT(red[0], 100) << scrolled;
        EXPECT_GT(red[1], 100) << scrolled;
    }
}

TEST_F(Output, ASelectedErrorHasTheColoursOfTheSelection) {
    m_window.AddOutput(L"; error: HHHH");
    m_window.AddOutput(L"; error: HHHH");
    SetFocus(List());
    SendMessageW(List(), EM_SETSEL, 2, 5);
    const std::vector<int> red = RedPixels(2);
    EXPECT_EQ(red[0], 0);
    EXPECT_GT(red[1], 20);
    SendMessageW(List(), EM_SETSEL, 0, 0);
    EXPECT_EQ(RedPixels(1)[0], red[1]);
}

}  // namespace
