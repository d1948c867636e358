// Objects and handles: permanent and temporary ones.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/windows/support/HandleCount.h"

namespace {

HWND MakeWindow() {
    return ::CreateWindowEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

TEST(HandleMap, FindsTheObjectThatAWindowIsAttachedTo) {
    const HWND window = MakeWindow();
    CWnd object;
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_TRUE(object.Attach(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), &object);
    EXPECT_EQ(CWnd::FromHandle(window), &object);
    EXPECT_EQ(object.Detach(), window);
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    ::DestroyWindow(window);
}

TEST(HandleMap, RefusesASecondObjectForAWindow) {
    CWnd first, second;
    first.Attach(MakeWindow());
    EXPECT_FALSE(second.Attach(first.m_hWnd));
    EXPECT_FALSE(second.SubclassWindow(first.m_hWnd));
    EXPECT_FALSE(second.Attach(nullptr));
    EXPECT_EQ(second.m_hWnd, nullptr);
}

TEST(HandleMap, GivesTheSameTemporaryObjectUntilTheScopeEnds) {
    const HWND window = MakeWindow();
    const long long before = HeapBlockCount();
    {
        AFX_MAINTAIN_STATE2 outer(AfxGetStaticModuleState());
        CWnd* const object = CWnd::FromHandle(window);
        EXPECT_EQ(object->m_hWnd, window);
        EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
        {
            AFX_MAINTAIN_STATE2 inner(AfxGetStaticModuleState());
            EXPECT_EQ(CWnd::FromHandle(window), object);
            CWnd::FromHandle(::GetDesktopWindow());
        }
        EXPECT_EQ(object->m_hWnd, window) << "freed with a scope it was not made in";
        EXPECT_EQ(CWnd::FromHandle(window), object);
    }
    EXPECT_EQ(HeapBlockCount(), before);
    EXPECT_TRUE(::IsWindow(window)) << "a temporary object owns nothing";
    ::DestroyWindow(window);
}

TEST(HandleMap, HasNoObjectForNoHandle) {
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
}

TEST(HandleMap, DestroysTheWindowWithItsPermanentObject) {
    HWND attached, subclassed, created;
    {
        CWnd first, second, third;
        first.Attach(attached = MakeWindow());
        second.SubclassWindow(subclassed = MakeWindow());
        third.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        created = third.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(attached));
    EXPECT_FALSE(::IsWindow(subclassed));
    EXPECT_FALSE(::IsWindow(created));
}

TEST(HandleMap, KnowsGdiObjectsByTheirHandles) {
    AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    const auto stock = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    CBrush* const brush = CBrush::FromHandle(stock);
    ASSERT_NE(brush, nullptr);
    EXPECT_EQ(brush->GetSafeHandle(), stock);
    EXPECT_EQ(CGdiObject::FromHandle(stock), brush);
    EXPECT_EQ(CFont::FromHandle(reinterpret_cast<HFONT>(stock)), nullptr) << "a brush is no font";
}

}  // namespace
