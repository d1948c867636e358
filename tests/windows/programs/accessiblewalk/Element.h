// An accessible element as a client sees it: an object of another process, or one of its simple children.
#pragma once

#include <windows.h>
// These need the types of windows.h.
#include <ole2.h>

#include <oleacc.h>

#include <memory>
#include <optional>
#include <string>

struct ComReleaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
using AccessiblePointer = std::unique_ptr<IAccessible, ComReleaser>;

// The object of a window's client area; null when there is none.
AccessiblePointer ObjectOf(HWND window);

class CElement {
public:
    // `child` is one of the object's, or CHILDID_SELF. The object is not owned.
    CElement(IAccessible& object, long child) : m_object(object), m_child(child) {}

    std::wstring GetName() const { return GetText(&IAccessible::get_accName).value_or(L""); }
    unsigned GetState() const;
    // What the element says of itself, in one line.
    std::wstring Describe() const;
    // In pixels of the screen.
    RECT GetLocation() const;

    HRESULT DoDefaultAction() const;
    HRESULT Select() const;

private:
    std::optional<std::wstring> GetText(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const;
    std::wstring GetRole() const;

    IAccessible& m_object;
    long m_child;
};

// A child id as the interface takes it.
VARIANT ToVariant(long child);
// The child id that the interface gave; -1 for none.
long ToChild(const VARIANT& variant);
