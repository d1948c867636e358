// The object that assistive technology gets: what it answers, what it refuses, and how long it lives.
#include "accessible/AccessibleObject.h"

#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "tests/windows/accessible/FakeContents.h"
#include "tests/windows/support/HandleCount.h"

namespace {

using namespace tavrin::accessible;

VARIANT Child(long id) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_I4;
    variant.lVal = id;
    return variant;
}

std::wstring Take(BSTR text) {
    const std::wstring copy(text != nullptr ? text : L"(none)");
    SysFreeString(text);
    return copy;
}

// A window of 100 x 80 pixels of client area at 30, 40 of the screen.
class AccessibleObject : public testing::Test {
protected:
    AccessibleObject() {
        window.CreateEx(0, AfxRegisterWndClass(0), L"window", WS_POPUP | WS_VISIBLE, CRect(30, 40, 130, 120),
                        nullptr, 0);
        object = new CAccessibleObject(window, contents);
    }
    ~AccessibleObject() override {
        if (object != nullptr) {
            object->Release();
        }
        window.DestroyWindow();
    }

    using TextQuestion = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::pair<HRESULT, std::wstring> Text(TextQuestion question, long child) {
        BSTR text = nullptr;
        const HRESULT result = (object->*question)(Child(child), &text);
        return {result, Take(text)};
    }
    using Number = std::pair<HRESULT, int>;
    static Number ToNumber(HRESULT result, const VARIANT& number) {
        return {result, number.vt == VT_I4 ? static_cast<int>(number.lVal) : -1};
    }
    Number Navigate(long direction, long start) {
        VARIANT end;
        const HRESULT result = object->accNavigate(direction, Child(start), &end);
        return ToNumber(result, end);
    }
    Number HitTest(long x, long y) {
        VARIANT child;
        const HRESULT result = object->accHitTest(x, y, &child);
        return ToNumber(result, child);
    }
    Number Focus() {
        VARIANT child;
        const HRESULT result = object->get_accFocus(&child);
        return ToNumber(result, child);
    }
    Number Selection() {
        VARIANT child;
        const HRESULT result = object->get_accSelection(&child);
        return ToNumber(result, child);
    }

    // Each question about a child, with its result.
    std::vector<HRESULT> AskAllOf(const VARIANT& child) {
        BSTR text = nullptr;
        VARIANT variant;
        IDispatch* dispatch = nullptr;
        LONG a = 0, b = 0, c = 0, d = 0;
        return {object->get_accChild(child, &dispatch),
                object->get_accName(child, &text),
                object->get_accValue(child, &text),
                object->get_accDescription(child, &text),
                object->get_accRole(child, &variant),
                object->get_accState(child, &variant),
                object->get_accHelp(child, &text),
                object->get_accHelpTopic(&text, child, &a),
                object->get_accKeyboardShortcut(child, &text),
                object->get_accDefaultAction(child, &text),
                object->accSelect(SELFLAG_TAKEFOCUS, child),
                object->accLocation(&a, &b, &c, &d, child),
                object->accNavigate(NAVDIR_NEXT, child, &variant),
                object->accDoDefaultAction(child),
                object->put_accName(child, nullptr),
                object->put_accValue(child, nullptr)};
    }

    CWnd window;
    CFakeContents contents;
    CAccessibleObject* object = nullptr;
};

TEST_F(AccessibleObject, IsWhatTheSystemAsksFor) {
    for (const IID& id : {__uuidof(IUnknown), __uuidof(IDispatch), __uuidof(IAccessible)}) {
        void* found = nullptr;
        EXPECT_EQ(object->QueryInterface(id, &found), S_OK);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(static_cast<IUnknown*>(found)->Release(), 1U);
    }
    void* found = this;
    EXPECT_EQ(object->QueryInterface(__uuidof(IEnumVARIANT), &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(object->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
}

TEST_F(AccessibleObject, IsGoneWithItsLastReference) {
    object->Release();
    const long long blocks = HeapBlockCount();
    object = new CAccessibleObject(window, contents);
    EXPECT_EQ(object->AddRef(), 2U);
    EXPECT_EQ(object->Release(), 1U);
    EXPECT_EQ(HeapBlockCount(), blocks + 1);
    EXPECT_EQ(object->Release(), 0U);
    EXPECT_EQ(HeapBlockCount(), blocks);
    object = nullptr;
}

TEST_F(AccessibleObject, HasNoNamesToLookUp) {
    UINT count = 7;
    EXPECT_EQ(object->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(object->GetTypeInfoCount(nullptr), E_POINTER);
    ITypeInfo* info = nullptr;
    EXPECT_EQ(object->GetTypeInfo(0, 0, &info), E_NOTIMPL);
    EXPECT_EQ(object->GetTypeInfo(0, 0, nullptr), E_POINTER);
    EXPECT_EQ(object->GetIDsOfNames(__uuidof(IUnknown), nullptr, 0, 0, nullptr), E_NOTIMPL);
    EXPECT_EQ(object->Invoke(0, __uuidof(IUnknown), 0, 0, nullptr, nullptr, nullptr, nullptr), E_NOTIMPL);
}

TEST_F(AccessibleObject, HasTheWindowAsItsParentAndNoObjectsForItsChildren) {
    LONG count = 0;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 2);
    IDispatch* found = nullptr;
    EXPECT_EQ(object->get_accChild(Child(1), &found), S_FALSE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(object->get_accChild(Child(CHILDID_SELF), &found), S_OK);
    EXPECT_EQ(found, object);
    found->Release();
    EXPECT_EQ(object->get_accParent(&found), S_OK);
    HWND owner = nullptr;
    void* parent = nullptr;
    ASSERT_EQ(found->QueryInterface(__uuidof(IAccessible), &parent), S_OK);
    EXPECT_EQ(WindowFromAccessibleObject(static_cast<IAccessible*>(parent), &owner), S_OK);
    EXPECT_EQ(owner, window.m_hWnd);
    static_cast<IAccessible*>(parent)->Release();
    found->Release();
}

TEST_F(AccessibleObject, GivesTheTextsThatThereAre) {
    using Answer = std::pair<HRESULT, std::wstring>;
    const Answer none = {S_FALSE, L"(none)"};
    EXPECT_EQ(Text(&IAccessible::get_accName, 0), Answer(S_OK, L"name 0"));
    EXPECT_EQ(Text(&IAccessible::get_accName, 2), none);
    EXPECT_EQ(Text(&IAccessible::get_accValue, 0), none);
    EXPECT_EQ(Text(&IAccessible::get_accValue, 1), Answer(S_OK, L"value"));
    EXPECT_EQ(Text(&IAccessible::get_accValue, 2), Answer(S_OK, L"")) << "an empty value is one";
    EXPECT_EQ(Text(&IAccessible::get_accDefaultAction, 1), Answer(S_OK, L"Edit"));
    EXPECT_EQ(Text(&IAccessible::get_accDefaultAction, 2), none);
    EXPECT_EQ(Text(&IAccessible::get_accKeyboardShortcut, 1), Answer(S_OK, L"F2"));
    EXPECT_EQ(Text(&IAccessible::get_accKeyboardShortcut, 2), none);
}

TEST_F(AccessibleObject, GivesRolesAndStates) {
    VARIANT number;
    EXPECT_EQ(object->get_accRole(Child(0), &number), S_OK);
    EXPECT_EQ(ToNumber(S_OK, number), Number(S_OK, ROLE_SYSTEM_LIST));
    EXPECT_EQ(object->get_accRole(Child(1), &number), S_OK);
    EXPECT_EQ(ToNumber(S_OK, number), Number(S_OK, ROLE_SYSTEM_LISTITEM));
    EXPECT_EQ(object->get_accState(Child(2), &number), S_OK);
    EXPECT_EQ(ToNumber(S_OK, number), Number(S_OK, STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTED));
}

TEST_F(AccessibleObject, StandsOnTheScreen) {
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(object->accLocation(&left, &top, &width, &height, Child(0)), S_OK);
    EXPECT_EQ((std::vector{left, top, width, height}), (std::vector<LONG>{30, 40, 100, 80}));
    EXPECT_EQ(object->accLocation(&left, &top, &width, &height, Child(2)), S_OK);
    EXPECT_EQ((std::vector{left, top, width, height}), (std::vector<LONG>{30, 60, 50, 20}));
}

TEST_F(AccessibleObject, FindsWhatIsAtAPoint) {
    EXPECT_EQ(HitTest(30, 40), Number(S_OK, 1));
    EXPECT_EQ(HitTest(129, 79), Number(S_OK, 2));
    EXPECT_EQ(HitTest(30, 119), Number(S_OK, CHILDID_SELF));
    EXPECT_EQ(HitTest(29, 40), Number(S_FALSE, -1)) << "outside";
    EXPECT_EQ(HitTest(130, 40), Number(S_FALSE, -1));
}

TEST_F(AccessibleObject, NavigatesAmongItsChildren) {
    EXPECT_EQ(Navigate(NAVDIR_FIRSTCHILD, CHILDID_SELF), Number(S_OK, 1));
    EXPECT_EQ(Navigate(NAVDIR_NEXT, 1), Number(S_OK, 2));
    EXPECT_EQ(Navigate(NAVDIR_NEXT, 2), Number(S_FALSE, -1));
    EXPECT_EQ(Navigate(0, 1), Number(E_INVALIDARG, -1));
    EXPECT_EQ(Navigate(9, 1), Number(E_INVALIDARG, -1));
}

TEST_F(AccessibleObject, HasAFocusWhileItsWindowHasIt) {
    window.SetFocus();
    EXPECT_EQ(Focus(), Number(S_OK, 2));
    EXPECT_EQ(Selection(), Number(S_OK, 2));
    contents.focusedChild = kSelf;
    EXPECT_EQ(Focus(), Number(S_OK, CHILDID_SELF));
    EXPECT_EQ(Selection(), Number(S_FALSE, -1));
    contents.focusedChild = 1;
    ::SetFocus(nullptr);
    EXPECT_EQ(Focus(), Number(S_FALSE, -1));
    EXPECT_EQ(Selection(), Number(S_OK, 1));
}

TEST_F(AccessibleObject, SelectsOneChildAtATime) {
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, Child(1)), S_OK);
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(0)), S_OK);
    EXPECT_EQ(object->accSelect(SELFLAG_TAKESELECTION, Child(2)), S_FALSE) << "it cannot be selected";
    EXPECT_EQ(contents.done, (std::vector<std::string>{"select 1", "select 0", "select 2"}));
    for (const LONG flags : {SELFLAG_NONE, SELFLAG_EXTENDSELECTION, SELFLAG_ADDSELECTION,
                             SELFLAG_REMOVESELECTION, SELFLAG_TAKEFOCUS | SELFLAG_ADDSELECTION}) {
        EXPECT_EQ(object->accSelect(flags, Child(1)), E_INVALIDARG) << flags;
    }
    EXPECT_EQ(contents.done.size(), 3U);
}

TEST_F(AccessibleObject, DoesTheDefaultActionThatThereIs) {
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(object->accDoDefaultAction(Child(2)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(contents.done, std::vector<std::string>{"do 1"});
}

TEST_F(AccessibleObject, RefusesWhatIsNoChild) {
    VARIANT noNumber = Child(1);
    noNumber.vt = VT_R4;
    VARIANT empty;
    VariantInit(&empty);
    for (const VARIANT& bad : {Child(-1), Child(3), Child(INT_MAX), noNumber, empty}) {
        for (const HRESULT result : AskAllOf(bad)) {
            EXPECT_EQ(result, E_INVALIDARG) << bad.vt << ' ' << bad.lVal;
        }
    }
    EXPECT_TRUE(contents.done.empty());
}

TEST_F(AccessibleObject, RefusesToAnswerToNowhere) {
    LONG number = 0;
    BSTR text = nullptr;
    const VARIANT self = Child(CHILDID_SELF);
    EXPECT_EQ(object->get_accParent(nullptr), E_POINTER);
    EXPECT_EQ(object->get_accChildCount(nullptr), E_POINTER);
    EXPECT_EQ(object->get_accChild(self, nullptr), E_POINTER);
    for (const TextQuestion question :
         {&IAccessible::get_accName, &IAccessible::get_accValue, &IAccessible::get_accDescription,
          &IAccessible::get_accHelp, &IAccessible::get_accKeyboardShortcut,
          &IAccessible::get_accDefaultAction}) {
        EXPECT_EQ((object->*question)(self, nullptr), E_POINTER);
    }
    EXPECT_EQ(object->get_accRole(self, nullptr), E_POINTER);
    EXPECT_EQ(object->get_accState(self, nullptr), E_POINTER);
    EXPECT_EQ(object->get_accHelpTopic(nullptr, self, &number), E_POINTER);
    EXPECT_EQ(object->get_accHelpTopic(&text, self, nullptr), E_POINTER);
    EXPECT_EQ(object->get_accFocus(nullptr), E_POINTER);
    EXPECT_EQ(object->get_accSelection(nullptr), E_POINTER);
    EXPECT_EQ(object->accLocation(nullptr, &number, &number, &number, self), E_POINTER);
    EXPECT_EQ(object->accLocation(&number, nullptr, &number, &number, self), E_POINTER);
    EXPECT_EQ(object->accLocation(&number, &number, nullptr, &number, self), E_POINTER);
    EXPECT_EQ(object->accLocation(&number, &number, &number, nullptr, self), E_POINTER);
    EXPECT_EQ(object->accNavigate(NAVDIR_NEXT, self, nullptr), E_POINTER);
    EXPECT_EQ(object->accHitTest(30, 40, nullptr), E_POINTER);
}

TEST_F(AccessibleObject, OffersNeitherDescriptionNorHelpNorChangesFromOutside) {
    EXPECT_EQ(Text(&IAccessible::get_accDescription, 1).first, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Text(&IAccessible::get_accHelp, 1).first, DISP_E_MEMBERNOTFOUND);
    BSTR file = nullptr;
    LONG topic = 7;
    EXPECT_EQ(object->get_accHelpTopic(&file, Child(1), &topic), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(topic, 0);
    EXPECT_EQ(object->put_accName(Child(1), nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->put_accValue(Child(1), nullptr), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessibleObject, AnswersThatItsWindowIsGone) {
    object->Disconnect();
    for (const long child : {0L, 1L, 99L}) {
        for (const HRESULT result : AskAllOf(Child(child))) {
            EXPECT_EQ(result, CO_E_OBJNOTCONNECTED);
        }
    }
    LONG count = 7;
    IDispatch* parent = nullptr;
    EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(object->get_accParent(&parent), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(Focus(), Number(CO_E_OBJNOTCONNECTED, -1));
    EXPECT_EQ(Selection(), Number(CO_E_OBJNOTCONNECTED, -1));
    EXPECT_EQ(HitTest(30, 40), Number(CO_E_OBJNOTCONNECTED, -1));
    EXPECT_TRUE(contents.done.empty());
}

TEST_F(AccessibleObject, LetsNothingThrownOut) {
    contents.whileAsked = [] { throw std::bad_alloc(); };
    EXPECT_EQ(Text(&IAccessible::get_accName, 1).first, E_OUTOFMEMORY);
    contents.whileAsked = [] { throw std::runtime_error("client code"); };
    EXPECT_EQ(Text(&IAccessible::get_accName, 1).first, E_FAIL);
}

}  // namespace
