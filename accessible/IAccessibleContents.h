// What a window tells of itself and its elements to assistive technology. The object that the system gets,
// CAccessibleObject, checks the arguments and asks this.
//
// Children are numbered from 1; kSelf is the window's client area. An operation is called with kSelf or a
// child that there is, on the window's thread, while the window exists. Rectangles and points are in pixels
// of the client area.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "accessible/Terms.h"

namespace tavrin::accessible {

class IAccessibleContents {
public:
    virtual int GetChildCount() = 0;
    virtual ERole GetRole(int child) = 0;
    // EState flags.
    virtual unsigned GetState(int child) = 0;
    virtual std::wstring GetName(int child) = 0;
    virtual std::optional<std::wstring> GetValue(int child) = 0;
    // What DoDefaultAction does, in a word; empty when there is none.
    virtual std::wstring GetDefaultAction(int child) = 0;
    virtual std::wstring GetShortcut(int child) = 0;

    // Of a child.
    virtual RECT GetRect(int child) = 0;
    // kSelf when no child is there.
    virtual int HitTest(POINT point) = 0;
    // The child that has the focus within the window, and is selected; kSelf for none.
    virtual int GetFocusedChild() = 0;

    // Both post a message that does the work: their caller waits, and a dialog would keep it waiting.
    virtual void DoDefaultAction(int child) = 0;
    // Gives the focus to a child, or to the window. False when it cannot have it.
    virtual bool Select(int child) = 0;

protected:
    ~IAccessibleContents() = default;
};

}  // namespace tavrin::accessible
