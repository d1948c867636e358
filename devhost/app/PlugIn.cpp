#include "devhost/app/PlugIn.h"

#include <optional>

#include "devhost/app/CrashReport.h"

namespace {

constexpr char kEntryPoint[] = "icrxEntryPoint";

std::wstring Quoted(const std::wstring& path) {
    return L"the plug-in '" + path + L"'";
}

std::wstring WhyNotLoaded(DWORD error) {
    constexpr int bits = 8 * sizeof(void*);
    switch (error) {
        case ERROR_BAD_EXE_FORMAT:
            return L"is no library for this DevHost: it takes a " + std::to_wstring(bits) + L"-bit DLL";
        case ERROR_MOD_NOT_FOUND:
            return L"cannot be loaded: a library that it needs is missing";
        case ERROR_PROC_NOT_FOUND:
            return L"cannot be loaded: a function that it needs is missing from a library";
        case ERROR_DLL_INIT_FAILED:
            return L"cannot be loaded: its own start failed";
        default:
            return L"cannot be loaded: system error " + std::to_wstring(error);
    }
}

}  // namespace

CPlugIn::CPlugIn(CHost& host, const std::wstring& path)
    : m_host(host), m_path(FullPath(path)), m_given(path) {
    Load();
}

void CPlugIn::Load() {
    const std::wstring& full = m_path;
    if (!IsFile(full)) {
        throw CUserError(Quoted(m_given) + L" does not exist: give --plugin an existing file");
    }
    // A name without an extension would get one, but for a point at its end.
    const bool hasExtension = full.find(L'.', full.find_last_of(L'\\')) != std::wstring::npos;
    m_library = LoadLibraryW(hasExtension ? full.c_str() : (full + L'.').c_str());
    if (m_library == nullptr) {
        throw CUserError(Quoted(m_given) + L' ' + WhyNotLoaded(GetLastError()));
    }
    WatchPlugIn(m_library);

    m_entry = reinterpret_cast<CEntryPoint*>(reinterpret_cast<void*>(GetProcAddress(m_library, kEntryPoint)));
    if (m_entry == nullptr) {
        Free();
        throw CUserError(Quoted(m_given) + L" lacks the entry point icrxEntryPoint: give --plugin a plug-in");
    }
    m_host.SetEntryPoint(m_entry);
    if (const std::wstring refusal = m_host.Send(*m_entry, SDS_LOAD); !refusal.empty()) {
        Free();
        throw CUserError(Quoted(m_given) + L" refused to be loaded: " + refusal);
    }
}

CPlugIn::~CPlugIn() {
    try {
        Unload();
    } catch (const CUserError&) {
        // Another failure is on its way to the user.
    }
}

void CPlugIn::Reload() {
    // What the old one has against going away is said when the new one has come.
    std::optional<CUserError> complaint;
    try {
        Unload();
    } catch (const CUserError& error) {
        complaint = error;
    }
    Load();
    if (complaint) {
        throw *complaint;
    }
}

void CPlugIn::Unload() {
    if (m_library == nullptr) {
        return;
    }
    const std::wstring refusal = m_host.Send(*m_entry, SDS_UNLOAD);
    const std::wstring leftBehind = m_host.ForgetFunctions();
    Free();
    if (!refusal.empty()) {
        throw CUserError(Quoted(m_given) + L" refused to be unloaded: " + refusal);
    }
    if (!leftBehind.empty()) {
        throw CUserError(Quoted(m_given) + L" left functions defined when it was unloaded: " + leftBehind);
    }
}

void CPlugIn::Free() {
    m_host.SetEntryPoint(nullptr);
    m_host.ForgetFunctions();
    FreeLibrary(m_library);
    m_library = nullptr;
    WatchPlugIn(nullptr);
}
