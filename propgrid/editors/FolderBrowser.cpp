// The shell's folder browser.
#include "propgrid/editors/FolderBrowser.h"

#include <shlobj.h>

namespace tavrin::propgrid {

namespace {

// The browser's new style wants OLE on its thread; a host may have started it or not.
class COleScope {
public:
    COleScope() : m_started(SUCCEEDED(::OleInitialize(nullptr))) {}
    ~COleScope() {
        if (m_started) {
            ::OleUninitialize();
        }
    }
    COleScope(const COleScope&) = delete;
    COleScope& operator=(const COleScope&) = delete;

private:
    bool m_started;
};

// What the browser opens on.
struct FirstFolder {
    const std::wstring& path;
    bool hasSelectionCome = false;
};

bool IsFolder(LPARAM list, const std::wstring& path) {
    wchar_t name[MAX_PATH] = {};
    return ::SHGetPathFromIDList(reinterpret_cast<LPCITEMIDLIST>(list), name) &&
           ::lstrcmpi(name, path.c_str()) == 0;
}

// `data` is the FirstFolder. Now and then Wine's browser does not find the folder while it is initialized,
// and then selects one of its own: it is asked once more as soon as it has done so. The request is posted,
// for the tree is in the middle of a selection.
int CALLBACK OnBrowserEvent(HWND browser, UINT event, LPARAM parameter, LPARAM data) {
    FirstFolder& first = *reinterpret_cast<FirstFolder*>(data);
    const auto path = reinterpret_cast<LPARAM>(first.path.c_str());
    if (event == BFFM_INITIALIZED) {
        ::SendMessage(browser, BFFM_SETSELECTION, TRUE, path);
    } else if (event == BFFM_SELCHANGED && !first.hasSelectionCome) {
        first.hasSelectionCome = true;
        if (!IsFolder(parameter, first.path)) {
            ::PostMessage(browser, BFFM_SETSELECTION, TRUE, path);
        }
    }
    return 0;
}

void FreeItemList(LPITEMIDLIST list) {
    IMalloc* allocator = nullptr;
    if (FAILED(::SHGetMalloc(&allocator))) {
        return;
    }
    allocator->Free(list);
    allocator->Release();
}

}  // namespace

std::wstring& FolderBrowseTitle() {
    static std::wstring title = L"Choose a directory";
    return title;
}

bool BrowseForFolder(std::wstring& path, HWND owner) {
    const COleScope ole;
    wchar_t displayName[MAX_PATH] = {};
    BROWSEINFO browse = {};
    browse.hwndOwner = owner;
    browse.pszDisplayName = displayName;
    browse.lpszTitle = FolderBrowseTitle().c_str();
    browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_RETURNFSANCESTORS | BIF_NEWDIALOGSTYLE;
    browse.lpfn = OnBrowserEvent;
    FirstFolder first{path};
    browse.lParam = reinterpret_cast<LPARAM>(&first);
    const LPITEMIDLIST chosen = ::SHBrowseForFolder(&browse);
    if (chosen == nullptr) {
        return false;
    }
    wchar_t chosenPath[MAX_PATH] = {};
    const bool hasPath = ::SHGetPathFromIDList(chosen, chosenPath);
    FreeItemList(chosen);
    path = hasPath ? chosenPath : L"";
    return true;
}

}  // namespace tavrin::propgrid
