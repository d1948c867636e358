// Whose resources and classes are used when two modules of a process have the framework inside.
#include <afxdisp.h>
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/windows/support/ImportHook.h"
#include "tests/windows/support/ModalDriver.h"

extern "C" int(WINAPI* __imp_MessageBoxW)(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type)
    IMPORT_ENTRY(MessageBoxW, 16);

namespace {

class OtherModule : public testing::Test {
protected:
    void SetUp() override {
        TCHAR path[MAX_PATH];
        ::GetModuleFileName(nullptr, path, MAX_PATH);
        const std::wstring file = path;
        m_module = ::LoadLibrary((file.substr(0, file.rfind(L'\\') + 1) + L"afx_other_module.dll").c_str());
        ASSERT_NE(m_module, nullptr) << ::GetLastError();
    }
    void TearDown() override {
        if (m_module != nullptr) {
            ::FreeLibrary(m_module);
        }
    }
    template <class TFunction>
    TFunction* Find(const char* name) const {
        return reinterpret_cast<TFunction*>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }

    HMODULE m_module = nullptr;
    const HINSTANCE m_program = ::GetModuleHandle(nullptr);
};

TEST_F(OtherModule, UsesItsOwnResourcesWhileItsStateIsAtWork) {
    EXPECT_EQ(Find<HINSTANCE()>("ResourcesOutside")(), m_program);
    EXPECT_EQ(Find<HINSTANCE(bool)>("ResourcesInside")(false), m_module);
    EXPECT_EQ(Find<HINSTANCE()>("ResourcesOutside")(), m_program);
}

TEST_F(OtherModule, GetsTheStateBackThatAnExceptionLeaves) {
    EXPECT_EQ(Find<HINSTANCE(bool)>("ResourcesInside")(true), m_module);
    EXPECT_EQ(Find<HINSTANCE()>("ResourcesOutside")(), m_program);
}

TEST_F(OtherModule, LoadsItsOwnStrings) {
    wchar_t text[50];
    Find<void(wchar_t*, int)>("ReadString")(text, 50);
    EXPECT_STREQ(text, L"Other module");
    CString own;
    own.LoadString(100);
    EXPECT_EQ(own, L"TavrinWnd");
}

TEST_F(OtherModule, SaysInItsOwnWordsThatADateIsInvalid) {
    COleDateTime date;
    date.SetStatus(COleDateTime::invalid);
    AfxSetResourceHandle(m_module);
    const CString text = date.Format();
    AfxSetResourceHandle(m_program);
    EXPECT_EQ(text, L"No date");
    EXPECT_EQ(date.Format(), L"Invalid DateTime");
}

TEST_F(OtherModule, HandlesItsWindowsMessagesInItsOwnState) {
    EXPECT_EQ(Find<HINSTANCE()>("ResourcesInWindow")(), m_module);
    EXPECT_EQ(Find<HINSTANCE()>("ResourcesOutside")(), m_program);
}

TEST_F(OtherModule, SharesNoWindowClassAndTakesItsOwnAway) {
    wchar_t name[100];
    Find<void(wchar_t*, int)>("RegisterClassName")(name, 100);
    const CString own = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_STRNE(name, own);
    WNDCLASS found;
    EXPECT_TRUE(::GetClassInfo(m_module, name, &found));
    const HMODULE module = m_module;
    ::FreeLibrary(m_module);
    m_module = nullptr;
    EXPECT_FALSE(::GetClassInfo(module, name, &found));
    EXPECT_TRUE(::GetClassInfo(m_program, own, &found));
}

TEST(ModuleState, OfTheProgramIsItsOwn) {
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr));
}

TEST(ModuleState, TakesTheResourcesFromTheHandleThatIsSet) {
    AFX_MODULE_STATE other = {AfxGetInstanceHandle(), AfxGetResourceHandle()};
    {
        AFX_MAINTAIN_STATE2 state(&other);
        AfxSetResourceHandle(::GetModuleHandle(L"user32"));
        CString text;
        EXPECT_FALSE(text.LoadString(100));
    }
    CString text;
    EXPECT_TRUE(text.LoadString(100));
}

TEST(RegisterWndClass, GivesOneNameForTheSameAttributes) {
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const LPCTSTR name = AfxRegisterWndClass(CS_VREDRAW, arrow);
    EXPECT_STREQ(AfxRegisterWndClass(CS_VREDRAW, arrow), name);
    EXPECT_STRNE(AfxRegisterWndClass(CS_VREDRAW), name);
    EXPECT_STRNE(AfxRegisterWndClass(CS_HREDRAW, arrow), name);
}

TEST(RegisterWndClass, RegistersAClassForWhichMemoryRanOutBefore) {
    const auto failAfter = reinterpret_cast<void (*)(size_t)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(L"TD_Alloc.dll"), "td_fail_after")));
    ASSERT_NE(failAfter, nullptr);
    LPCTSTR name = nullptr;
    for (size_t allocation = 1; name == nullptr && allocation < 100; ++allocation) {
        failAfter(allocation);
        try {
            name = AfxRegisterWndClass(CS_VREDRAW | CS_SAVEBITS);
        } catch (const std::bad_alloc&) {
        } catch (CException* error) {
            failAfter(0);
            error->Delete();
            FAIL() << "registered by an attempt that failed";
        }
        failAfter(0);
    }
    EXPECT_NE(name, nullptr);
}

TEST(MessageBoxes, AreOwnedByTheMainWindowAndCarryTheProgramsName) {
    CWinApp application(L"Some name");
    CWnd main;
    main.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr);
    application.m_pMainWnd = &main;
    EXPECT_EQ(AfxGetMainWnd(), &main);
    CModalDriver driver;
    driver.ThenPressOk();
    EXPECT_EQ(AfxMessageBox(L"text"), IDOK);
    driver.ThenPressOk();
    EXPECT_EQ(AfxMessageBox(100), IDOK);
    ASSERT_EQ(driver.messages.size(), 2u);
    EXPECT_EQ(driver.messages[0].text, L"text");
    EXPECT_EQ(driver.messages[0].caption, L"Some name");
    EXPECT_EQ(driver.messages[0].owner, main.m_hWnd);
    EXPECT_EQ(driver.messages[1].text, L"TavrinWnd");
}

TEST(MessageBoxes, HaveAnExclamationMarkUnlessAnotherIconWasChosen) {
    static UINT shown;
    const CImportHook box(
        __imp_MessageBoxW, +[](HWND, LPCWSTR, LPCWSTR, UINT type) WINAPI {
            shown = type;
            return IDYES;
        });
    EXPECT_EQ(AfxMessageBox(L"text", MB_YESNO), IDYES);
    EXPECT_EQ(shown, UINT{MB_YESNO | MB_ICONEXCLAMATION});
    AfxMessageBox(100);
    EXPECT_EQ(shown, UINT{MB_OK | MB_ICONEXCLAMATION});
    AfxMessageBox(L"text", MB_ICONSTOP);
    EXPECT_EQ(shown, UINT{MB_ICONSTOP});
}

TEST(MessageBoxes, CarryTheFilesNameWithoutAnApplicationObject) {
    EXPECT_STREQ(AfxGetAppName(), L"afx_tests");
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

TEST(MainWindow, IsTheActiveOneWhenTheApplicationNamesNone) {
    const CWinApp application;
    CWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr);
    window.SetActiveWindow();
    EXPECT_EQ(AfxGetMainWnd(), &window);
}

}  // namespace
