#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/windows/support/HandleCount.h"

namespace {

class Gdi : public testing::Test {
    AFX_MAINTAIN_STATE2 m_state{AfxGetStaticModuleState()};
};

TEST_F(Gdi, DeletesAnObjectWithItsOwner) {
    HGDIOBJ handle;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = brush.GetSafeHandle();
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
    CPen pen;
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_TRUE(pen.CreatePen(PS_SOLID, 1, 0));
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_TRUE(pen.CreatePen(PS_SOLID, 1, 0));
    handle = pen.Detach();
    EXPECT_EQ(pen.GetSafeHandle(), nullptr);
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST_F(Gdi, GivesThePreviousObjectWhenOneIsSelected) {
    CClientDC screen(nullptr);
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
    CPen first(PS_SOLID, 1, RGB(255, 0, 0)), second(PS_SOLID, 1, RGB(0, 255, 0));
    CPen* const original = memory.SelectObject(&first);
    ASSERT_NE(original, nullptr);
    EXPECT_EQ(memory.SelectObject(&second), &first);
    EXPECT_EQ(memory.SelectObject(original), &second);
}

TEST_F(Gdi, PaintsIntoABitmap) {
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 20, 20));
    CBitmap* const original = memory.SelectObject(&bitmap);
    const COLORREF background = memory.GetBkColor();
    memory.FillSolidRect(CRect(0, 0, 20, 20), RGB(10, 20, 30));
    EXPECT_EQ(memory.GetBkColor(), background) << "filling leaves the background colour alone";
    memory.FillSolidRect(CRect(5, 5, 10, 10), RGB(200, 0, 0));
    EXPECT_EQ(memory.GetPixel(0, 0), RGB(10, 20, 30));
    EXPECT_EQ(memory.GetPixel(5, 5), RGB(200, 0, 0));
    EXPECT_EQ(memory.GetPixel(10, 10), RGB(10, 20, 30));
    CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* const oldPen = memory.SelectObject(&pen);
    EXPECT_TRUE(memory.MoveTo(0, 15) == CPoint(0, 0));
    memory.LineTo(4, 15);
    EXPECT_TRUE(memory.MoveTo(0, 0) == CPoint(4, 15));
    EXPECT_EQ(memory.GetPixel(3, 15), RGB(0, 0, 255));
    EXPECT_EQ(memory.GetPixel(4, 15), RGB(10, 20, 30));
    memory.SelectObject(oldPen);
    memory.SelectObject(original);
}

TEST_F(Gdi, RestoresAStateThatWasSaved) {
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    const int saved = memory.SaveDC();
    memory.SetTextColor(RGB(1, 2, 3));
    memory.SetBkMode(TRANSPARENT);
    EXPECT_TRUE(memory.RestoreDC(saved));
    EXPECT_EQ(memory.GetTextColor(), RGB(0, 0, 0));
    EXPECT_EQ(::GetBkMode(memory), OPAQUE);
}

TEST_F(Gdi, TakesTheSizeOfAPointFontInTenths) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(160, L"Tahoma"));
    LOGFONT description;
    ASSERT_NE(font.GetLogFont(&description), 0);
    CClientDC screen(nullptr);
    EXPECT_EQ(description.lfHeight, -::MulDiv(160, screen.GetDeviceCaps(LOGPIXELSY), 720));
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
}

TEST_F(Gdi, ReleasesTheContextsOfWindowsAndPaints) {
    CWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 30, 30, nullptr, nullptr);
    const auto cycle = [&] {
        CClientDC client(&window);
        CWindowDC whole(&window);
        CPaintDC paint(&window);
        CDC memory;
        memory.CreateCompatibleDC(&paint);
        EXPECT_EQ(CDC::FromHandle(paint.m_hDC), &paint);
    };
    cycle();
    const int before = GdiObjectCount();
    for (int count = 0; count < 200; ++count) {
        cycle();
    }
    EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
