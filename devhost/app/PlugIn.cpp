#include "devhost/app/PlugIn.h"

#include <optional>

#include "devhost/UserError.h"
#include "devhost/app/CrashReport.h"

namespace devhost {

namespace {

constexpr char kEntryPoint[] = "icrxEntryPoint";

std::wstring Quoted(const std::wstring& path) {
    return L"the plug-in '" + path + L"'";
}

std::wstring WhyNotLoaded(DWORD error) {
    constexpr int kBits = 8 * sizeof(void*);
    switch (error) {
        case ERROR_BAD_EXE_FORMAT:
            return L"is not a library for this DevHost, which needs a " + std::to_wstring(kBits) +
                   L"-bit DLL";
        case ERROR_MOD_NOT_FOUND:
            return L"cannot be loaded: a library that it depends on is missing";
        case ERROR_PROC_NOT_FOUND:
            return L"cannot be loaded: a library does not have a function that it needs";
        case ERROR_DLL_INIT_FAILED:
            return L"cannot be loaded: its initialization failed";
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
    // A dot at the end keeps LoadLibrary from adding an extension.
    const bool hasExtension = full.find(L'.', full.find_last_of(L'\\')) != std::wstring::npos;
    m_library = LoadLibraryW(hasExtension ? full.c_str() : (full + L'.').c_str());
    if (m_library == nullptr) {
        const DWORD error = GetLastError();
        throw CUserError(Quoted(m_given) + L' ' + WhyNotLoaded(error));
    }
    WatchPlugIn(m_library);

    m_entry = reinterpret_cast<EntryPoint*>(reinterpret_cast<void*>(GetProcAddress(m_library, kEntryPoint)));
    if (m_entry == nullptr) {
        Free();
        throw CUserError(Quoted(m_given) + L" has no entry point icrxEntryPoint: give --plugin a plug-in");
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
        // The user gets the error that caused the destruction.
    }
}

void CPlugIn::Reload(const std::function<void()>& whileUnloaded) {
    // The first error is reported after loading.
    std::optional<CUserError> firstError;
    for (const std::function<void()>& step : {std::function<void()>([this] { Unload(); }), whileUnloaded}) {
        try {
            step();
        } catch (const CUserError& error) {
            firstError = firstError ? firstError : error;
        }
    }
    Load();
    if (firstError) {
        throw *firstError;
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

}  // namespace devhost
