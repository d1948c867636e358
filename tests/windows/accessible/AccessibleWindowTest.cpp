// How a window hands its accessible object out: one object, to its own thread and to others, until it goes.
#include "accessible/AccessibleWindow.h"

#include <afxwin.h>
#include <gtest/gtest.h>
#include <ole2.h>

#include <oleacc.h>

#include <atomic>
#include <thread>

#include "tests/windows/accessible/FakeContents.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/Pixels.h"

namespace {

using namespace tavrin::accessible;

class CTestWindow : public CWnd {
public:
    CTestWindow() {
        CreateEx(0, AfxRegisterWndClass(0), L"window", WS_POPUP | WS_VISIBLE, CRect(30, 40, 130, 120),
                 nullptr, 0);
    }
    ~CTestWindow() override { DestroyWindow(); }

    CFakeContents contents;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_DESTROY) {
            m_accessible.Disconnect();
        }
        if (message == WM_GETOBJECT) {
            if (const std::optional<LRESULT> answer = m_accessible.Answer(m_hWnd, wParam, lParam)) {
                return *answer;
            }
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    CAccessibleWindow m_accessible{contents};
};

IAccessible* Ask(HWND window, LONG object = OBJID_CLIENT) {
    void* found = nullptr;
    EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(object), __uuidof(IAccessible), &found),
              S_OK);
    return static_cast<IAccessible*>(found);
}

LONG CountChildren(IAccessible& object) {
    LONG count = -1;
    const HRESULT result = object.get_accChildCount(&count);
    return SUCCEEDED(result) ? count : static_cast<LONG>(result);
}

TEST(AccessibleWindow, HandsItsObjectOutToItsOwnThread) {
    CTestWindow window;
    IAccessible* const object = Ask(window);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(CountChildren(*object), 2);
    object->Release();
}

TEST(AccessibleWindow, HasOneObject) {
    CTestWindow window;
    IAccessible* const first = Ask(window);
    IAccessible* const second = Ask(window);
    EXPECT_EQ(first, second);
    first->Release();
    second->Release();
}

TEST(AccessibleWindow, LeavesTheOtherObjectsToTheSystem) {
    CTestWindow window;
    IAccessible* const frame = Ask(window, OBJID_WINDOW);
    ASSERT_NE(frame, nullptr);
    EXPECT_NE(CountChildren(*frame), 2);
    frame->Release();
    EXPECT_EQ(window.SendMessage(WM_GETOBJECT, 0, 12345), 0) << "an object that nobody knows";
}

TEST(AccessibleWindow, HandsItsObjectOutToOtherThreads) {
    CTestWindow window;
    std::atomic<LONG> count = -1;
    std::atomic<bool> ended = false;
    std::thread other([&, handle = window.m_hWnd] {
        CoInitialize(nullptr);
        if (IAccessible* const object = Ask(handle)) {
            count = CountChildren(*object);
            object->Release();
        }
        CoUninitialize();
        ended = true;
    });
    EXPECT_TRUE(PumpUntil([&] { return ended.load(); }));
    other.join();
    EXPECT_EQ(count, 2);
}

TEST(AccessibleWindow, TellsWhoStillHoldsTheObjectThatItIsGone) {
    auto window = std::make_unique<CTestWindow>();
    IAccessible* const object = Ask(*window);
    window.reset();
    EXPECT_EQ(CountChildren(*object), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object->Release(), 0U);
}

TEST(AccessibleWindow, CutsOtherThreadsOffWhenItGoes) {
    auto window = std::make_unique<CTestWindow>();
    std::atomic<bool> asked = false;
    std::atomic<bool> gone = false;
    std::atomic<bool> ended = false;
    std::atomic<HRESULT> result = S_OK;
    std::thread other([&, handle = window->m_hWnd] {
        CoInitialize(nullptr);
        IAccessible* const object = Ask(handle);
        asked = true;
        while (!gone) {
            std::this_thread::yield();
        }
        LONG count = 0;
        result = object->get_accChildCount(&count);
        object->Release();
        CoUninitialize();
        ended = true;
    });
    EXPECT_TRUE(PumpUntil([&] { return asked.load(); }));
    window.reset();
    gone = true;
    EXPECT_TRUE(PumpUntil([&] { return ended.load(); }));
    other.join();
    EXPECT_TRUE(FAILED(result.load()));
}

TEST(AccessibleWindow, KeepsNothingWhenItGoes) {
    const auto ask = [](bool release) {
        CTestWindow window;
        IAccessible* const object = Ask(window);
        std::atomic<bool> ended = false;
        std::thread other([&, handle = window.m_hWnd] {
            CoInitialize(nullptr);
            IAccessible* const proxy = Ask(handle);
            if (release) {
                proxy->Release();
            }
            CoUninitialize();
            ended = true;
        });
        EXPECT_TRUE(PumpUntil([&] { return ended.load(); }));
        other.join();
        // What nobody fetches.
        window.SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT);
        object->Release();
    };
    ask(true);  // what the system makes once
    const ProcessHoldings before = CountHoldings();
    ask(true);
    ask(false);
    PumpMessages();
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
