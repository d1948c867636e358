// A plug-in module, loaded and asked to start; unloaded at the latest with the object.
#pragma once

#include <windows.h>

#include <string>

#include "devhost/app/Host.h"

class CPlugIn {
public:
    // Loads the file and sends the load request. Throws CUserError that names the file when it does not
    // exist, is no library for this process, lacks the entry point or refuses; then nothing stays loaded.
    CPlugIn(CHost& host, const std::wstring& path);
    ~CPlugIn();
    CPlugIn(const CPlugIn&) = delete;
    CPlugIn& operator=(const CPlugIn&) = delete;

    // Unloads it, when it is loaded, and loads the file again. Throws CUserError for what went wrong in
    // either; after a failed loading no plug-in is loaded until the next try.
    void Reload();

    // Sends the unload request and lets the library go. Throws CUserError when the plug-in refuses or leaves
    // functions behind; it is unloaded nevertheless. Does nothing when it is not loaded.
    void Unload();

private:
    void Load();
    void Free();

    CHost& m_host;
    std::wstring m_path;   // in full, since file dialogs change the current folder
    std::wstring m_given;  // as the user gave it
    HMODULE m_library = nullptr;
    CEntryPoint* m_entry = nullptr;
};
