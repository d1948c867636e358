#include "dyndlg/ActiveXHost.h"

#include <objidl.h>

namespace tavrin::dyndlg {

namespace {

using CreateControlFunction = HRESULT(WINAPI*)(LPCOLESTR name, HWND window, IStream* data,
                                               IUnknown** container);

template <typename Function>
Function Find(HMODULE library, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

CreateControlFunction LoadControlHost() {
    for (const LPCTSTR name : {_T("atl.dll"), _T("atl110.dll")}) {
        // Kept loaded once it is usable: its window classes and windows may live as long as the process.
        const HMODULE library = ::LoadLibraryEx(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (library == nullptr) {
            continue;
        }
        const auto initialize = Find<BOOL(WINAPI*)()>(library, "AtlAxWinInit");
        const auto create = Find<CreateControlFunction>(library, "AtlAxCreateControl");
        if (initialize != nullptr && create != nullptr && initialize()) {
            return create;
        }
        ::FreeLibrary(library);
    }
    return nullptr;
}

}  // namespace

bool CreateActiveXIn(HWND window, LPCTSTR progId) {
    static const CreateControlFunction create = LoadControlHost();
    // AtlAxCreateControl accepts an empty name: it then makes a window without a control.
    return *progId != _T('\0') && create != nullptr && SUCCEEDED(create(progId, window, nullptr, nullptr));
}

}  // namespace tavrin::dyndlg
