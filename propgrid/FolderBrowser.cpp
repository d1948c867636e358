// The shell's folder browser.
#include "FolderBrowser.h"

#include <shlobj.h>

namespace {

// The browser's new style wants OLE on its thread; a host may have started it or not.
class COleScope {
public:
    COleScope() : m_started(SUCCEEDED(::OleInitialize(nullptr))) {}
    ~COleScope() {
        if (m_started)
            ::OleUninitialize();
    }
    COleScope(const COleScope&) = delete;
    COleScope& operator=(const COleScope&) = delete;

private:
    bool m_started;
};

// `data` is the path to be selected.
int CALLBACK OnBrowserEvent(HWND browser, UINT event, LPARAM /*parameter*/, LPARAM data) {
    if (event == BFFM_INITIALIZED)
        ::SendMessage(browser, BFFM_SETSELECTION, TRUE, data);
    return 0;
}

void FreeItemList(LPITEMIDLIST list) {
    IMalloc* allocator = nullptr;
    if (FAILED(::SHGetMalloc(&allocator)))
        return;
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
    browse.lParam = reinterpret_cast<LPARAM>(path.c_str());
    const LPITEMIDLIST chosen = ::SHBrowseForFolder(&browse);
    if (chosen == nullptr)
        return false;
    wchar_t chosenPath[MAX_PATH] = {};
    const bool hasPath = ::SHGetPathFromIDList(chosen, chosenPath);
    FreeItemList(chosen);
    path = hasPath ? chosenPath : L"";
    return true;
}
