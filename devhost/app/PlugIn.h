// A plug-in module, loaded and asked to start; unloaded at the latest with the object.
#pragma once

#include <windows.h>

#include <string>

#include "Host.h"

class CPlugIn {
public:
    // Loads the file and sends the load request. Throws CUserError that names the file when it does not
    // exist, is no library for this process, lacks the entry point or refuses; then nothing stays loaded.
    CPlugIn(CHost& host, const std::wstring& path);
    ~CPlugIn();
    CPlugIn(const CPlugIn&) = delete;
    CPlugIn& operator=(const CPlugIn&) = delete;

    // Sends the unload request and lets the library go. Throws CUserError when the plug-in refuses or leaves
    // functions behind; it is unloaded nevertheless.
    void Unload();

private:
    void Free();

    CHost& m_host;
    std::wstring m_path;
    HMODULE m_library = nullptr;
    CEntryPoint* m_entry = nullptr;
};
