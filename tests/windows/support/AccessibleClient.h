// A client of assistive technology in the test's own process: what a window says of its elements, in short
// lines, and the events that it reports.
#pragma once

#include <windows.h>
// These need the types of windows.h.
#include <ole2.h>

#include <oleacc.h>

#include <memory>
#include <string>
#include <vector>

class CAccessibleClient {
public:
    explicit CAccessibleClient(HWND window);

    bool IsConnected() const { return m_object != nullptr; }
    IAccessible& Object() const { return *m_object; }

    int CountChildren() const;
    // Child 0 is the window itself. A text that there is none of is "(none)".
    std::wstring NameOf(long child) const { return TextOf(&IAccessible::get_accName, child); }
    std::wstring ValueOf(long child) const { return TextOf(&IAccessible::get_accValue, child); }
    std::wstring ActionOf(long child) const { return TextOf(&IAccessible::get_accDefaultAction, child); }
    std::wstring ShortcutOf(long child) const { return TextOf(&IAccessible::get_accKeyboardShortcut, child); }
    int RoleOf(long child) const;
    // STATE_SYSTEM_... flags.
    unsigned StateOf(long child) const;
    // On the screen.
    RECT LocationOf(long child) const;
    // The child at a point of the screen; -1 outside the window.
    int HitTest(POINT point) const;
    int FocusedChild() const;   // -1 for none
    int SelectedChild() const;  // -1 for none

    HRESULT DoDefaultAction(long child) const;
    HRESULT Select(long child) const;

    // The names of all children, each followed by a blank.
    std::wstring Names() const;

private:
    struct Releaser {
        void operator()(IAccessible* object) const { object->Release(); }
    };
    std::wstring TextOf(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*), long child) const;

    std::unique_ptr<IAccessible, Releaser> m_object;
};

// Collects the events of a window's client area while it lives, such as "focus 3".
class CAccessibleEvents {
public:
    explicit CAccessibleEvents(HWND window);
    ~CAccessibleEvents();
    CAccessibleEvents(const CAccessibleEvents&) = delete;
    CAccessibleEvents& operator=(const CAccessibleEvents&) = delete;

    // Those since the last call: handles messages until all that was reported has come in.
    std::vector<std::string> Take();

private:
    static void CALLBACK OnEvent(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child,
                                 DWORD thread, DWORD time);

    HWND m_window;
    HWINEVENTHOOK m_hook;
    std::vector<std::string> m_events;
};
