// A loaded and initialized plug-in module. The destructor unloads it.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "devhost/app/Host.h"

namespace devhost {

class CPlugIn {
public:
    // Loads the file and sends the load request. Throws CUserError, with nothing loaded, when the file does
    // not exist, is not a library for this process, has no entry point or refuses.
    CPlugIn(CHost& host, const std::wstring& path);
    ~CPlugIn();
    CPlugIn(const CPlugIn&) = delete;
    CPlugIn& operator=(const CPlugIn&) = delete;

    // Unloads it, if it is loaded, calls `whileUnloaded`, which may throw CUserError, and loads the file
    // again. Throws CUserError when one of the three fails; after a failed load no plug-in is loaded until
    // the next try.
    void Reload(const std::function<void()>& whileUnloaded = [] {});

    // Sends the unload request and unloads the library. Throws CUserError when the plug-in refuses or leaves
    // functions defined; it is unloaded nevertheless. Does nothing when it is not loaded.
    void Unload();

private:
    void Load();
    void Free();

    CHost& m_host;
    std::wstring m_path;   // absolute, since file dialogs change the current folder
    std::wstring m_given;  // as the user gave it
    HMODULE m_library = nullptr;
    EntryPoint* m_entry = nullptr;
};

}  // namespace devhost
