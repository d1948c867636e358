// Window classes of the module.
#include <list>
#include <string>

#include "afx/afxwin.h"

namespace {

// The classes registered so far, unregistered when the module ends: their procedure goes with it.
class CWindowClasses {
public:
    ~CWindowClasses() {
        for (const std::wstring& name : m_names) {
            ::UnregisterClass(name.c_str(), AfxGetStaticModuleState()->m_hCurrentInstanceHandle);
        }
    }

    LPCTSTR Add(LPCTSTR name) { return m_names.emplace_back(name).c_str(); }
    void RemoveLast() { m_names.pop_back(); }
    LPCTSTR Find(LPCTSTR name) const {
        for (const std::wstring& known : m_names) {
            if (known == name) {
                return known.c_str();
            }
        }
        return nullptr;
    }

private:
    std::list<std::wstring> m_names;  // a list, because callers keep pointers to the names
};

}  // namespace

LPCTSTR AFXAPI AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon) {
    static CWindowClasses classes;
    // The module's own instance, in the class and in its name: two modules of a process that both have
    // this framework inside never share a class.
    const HINSTANCE instance = AfxGetStaticModuleState()->m_hCurrentInstanceHandle;
    CString name;
    name.Format(L"Afx:%Ix:%x:%Ix:%Ix:%Ix", instance, classStyle, cursor, background, icon);
    if (const LPCTSTR known = classes.Find(name)) {
        return known;
    }
    WNDCLASS windowClass = {};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    // Recorded first: if recording failed for lack of memory after registering, the class would stay
    // registered.
    windowClass.lpszClassName = classes.Add(name);
    if (::RegisterClass(&windowClass) == 0) {
        classes.RemoveLast();
        AfxThrowResourceException();
    }
    return windowClass.lpszClassName;
}
