// AccessibleWalk.exe: prints what a window of another process tells assistive technology, or acts on it.
//
//     AccessibleWalk.exe TITLE CONTROL              prints the control and its children, one per line
//     AccessibleWalk.exe TITLE CONTROL do NAME      runs the default action of the element with the name
//     AccessibleWalk.exe TITLE CONTROL select NAME  gives it focus and selection
//
// TITLE is a top-level window's. CONTROL is the id of a child window, "edit" for the first edit that is shown
// in it, or "popup" for the window without a title that stands in front of it, such as a drop-down list. What
// an element says that contradicts another answer is printed in a line that begins with "!". Exit status 1
// when there is no such window or element, 2 for a wrong call. Texts are UTF-8.
#include <cstdio>
#include <cwchar>

#include "tests/windows/programs/accessiblewalk/Element.h"

namespace {

void PrintLine(const std::wstring& line) {
    std::string bytes(line.size() * 3, '\0');
    const int count = WideCharToMultiByte(CP_UTF8, 0, line.c_str(), static_cast<int>(line.size()),
                                          bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(count));
    std::puts(bytes.c_str());
}

BOOL CALLBACK TakePopUp(HWND window, LPARAM result) {
    if (!IsWindowVisible(window) || GetWindowTextLengthW(window) != 0) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

BOOL CALLBACK TakeEdit(HWND window, LPARAM result) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (!IsWindowVisible(window) || std::wstring(name) != L"Edit") {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

HWND FindTarget(const wchar_t* title, const std::wstring& control) {
    const HWND window = FindWindowW(nullptr, title);
    HWND found = nullptr;
    const auto result = reinterpret_cast<LPARAM>(&found);
    if (control == L"popup") {
        EnumThreadWindows(GetWindowThreadProcessId(window, nullptr), TakePopUp, result);
    } else if (control == L"edit") {
        EnumChildWindows(window, TakeEdit, result);
    } else {
        found = GetDlgItem(window, static_cast<int>(std::wcstol(control.c_str(), nullptr, 10)));
    }
    return found;
}

// One accessible window and the checks of what it answers.
class CWalk {
public:
    CWalk(HWND window, IAccessible& object) : m_window(window), m_object(object) {
        object.get_accChildCount(&m_count);
    }

    void Print() const {
        PrintLine(CElement(m_object, CHILDID_SELF).Describe());
        CheckWindow();
        for (long child = 1; child <= m_count; ++child) {
            PrintLine(L"  " + CElement(m_object, child).Describe());
            CheckNavigation(child);
            CheckHit(child);
            CheckFocus(child);
        }
    }

    std::optional<CElement> Find(const std::wstring& name) const {
        for (long child = CHILDID_SELF; child <= m_count; ++child) {
            if (CElement(m_object, child).GetName() == name) {
                return CElement(m_object, child);
            }
        }
        return std::nullopt;
    }

private:
    void CheckWindow() const {
        HWND window = nullptr;
        if (WindowFromAccessibleObject(&m_object, &window) != S_OK || window != m_window) {
            PrintLine(L"! its parents lead to another window");
        }
    }

    long Navigate(long direction, long start) const {
        VARIANT end;
        VariantInit(&end);
        m_object.accNavigate(direction, ToVariant(start), &end);
        return ToChild(end);
    }

    void CheckNavigation(long child) const {
        const long next = child < m_count ? child + 1 : -1;
        const long previous = child > 1 ? child - 1 : -1;
        if (Navigate(NAVDIR_NEXT, child) != next || Navigate(NAVDIR_PREVIOUS, child) != previous ||
            Navigate(NAVDIR_FIRSTCHILD, CHILDID_SELF) != 1 ||
            Navigate(NAVDIR_LASTCHILD, CHILDID_SELF) != m_count) {
            PrintLine(L"! navigation");
        }
    }

    // What is in sight is found where it says that it stands; what is not stands outside the window.
    void CheckHit(long child) const {
        const CElement element(m_object, child);
        const RECT window = CElement(m_object, CHILDID_SELF).GetLocation();
        const RECT location = element.GetLocation();
        RECT inSight;
        const bool isInSight = IntersectRect(&inSight, &location, &window) != FALSE;
        if (isInSight == ((element.GetState() & STATE_SYSTEM_OFFSCREEN) != 0)) {
            PrintLine(L"! location and state");
        }
        VARIANT hit;
        VariantInit(&hit);
        if (isInSight) {
            m_object.accHitTest((inSight.left + inSight.right) / 2, (inSight.top + inSight.bottom) / 2, &hit);
        }
        if (isInSight && ToChild(hit) != child) {
            PrintLine(L"! hit test");
        }
    }

    void CheckFocus(long child) const {
        const unsigned state = CElement(m_object, child).GetState();
        VARIANT focused;
        VARIANT selected;
        VariantInit(&focused);
        VariantInit(&selected);
        m_object.get_accFocus(&focused);
        m_object.get_accSelection(&selected);
        if ((ToChild(selected) == child) != ((state & STATE_SYSTEM_SELECTED) != 0)) {
            PrintLine(L"! selection");
        }
        if ((ToChild(focused) == child) != ((state & STATE_SYSTEM_FOCUSED) != 0)) {
            PrintLine(L"! focus");
        }
    }

    HWND m_window;
    IAccessible& m_object;
    long m_count = 0;
};

constexpr int kNotFound = 1;
constexpr int kWrongUse = 2;

int Run(int count, wchar_t** arguments) {
    const HWND window = FindTarget(arguments[1], arguments[2]);
    const AccessiblePointer object = window != nullptr ? ObjectOf(window) : nullptr;
    if (object == nullptr) {
        std::fputs("AccessibleWalk: no such window\n", stderr);
        return kNotFound;
    }
    const CWalk walk(window, *object);
    if (count == 3) {
        walk.Print();
        return 0;
    }
    const std::optional<CElement> element = walk.Find(arguments[4]);
    if (!element) {
        std::fputs("AccessibleWalk: no such element\n", stderr);
        return kNotFound;
    }
    const bool isAction = std::wstring(arguments[3]) == L"do";
    const HRESULT result = isAction ? element->DoDefaultAction() : element->Select();
    std::printf("%s\n", result == S_OK ? "done" : "refused");
    return 0;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const std::wstring act = count == 5 ? arguments[3] : L"";
    if (count != 3 && act != L"do" && act != L"select") {
        std::fputs("usage: AccessibleWalk.exe TITLE CONTROL|edit|popup [do|select NAME]\n", stderr);
        return kWrongUse;
    }
    CoInitialize(nullptr);
    const int status = Run(count, arguments);
    CoUninitialize();
    return status;
}
