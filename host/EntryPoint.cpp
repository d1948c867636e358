// The entry point of the module.
#include <afxwin.h>

#include <string>

#include "host/CommandTable.h"
#include "sds/HostBinding.h"
#include "sds/sds.h"

namespace tavrin::host {

namespace {

// The framework finds the module's instance, and with it the module's resources, through this object.
CWinApp application(L"TavrinWnd");

// The host does not offer all that the module calls, so nothing of it may be called.
bool hostIsBound = false;

constexpr int kRequestServed = 0;
constexpr int kRequestRefused = 3;

int Load() {
    const std::wstring missing = BindHost(GetModuleHandleW(nullptr));
    hostIsBound = missing.empty();
    if (!hostIsBound) {
        const std::wstring message =
            L"TavrinWnd cannot work in this host application. The host does not offer:\n\n" + missing +
            L"\n\nPlease load it in a version of the host that does.";
        MessageBoxW(nullptr, message.c_str(), L"Error!", MB_OK | MB_TASKMODAL);
        return kRequestRefused;
    }
    RegisterCommands();
    return kRequestServed;
}

}  // namespace

// The host's requests: 1 loads, 2 unloads, 5 invokes the function that LISP called; the others up to 17
// are ignored. Returns 0, or 3 for a request that is not known and for a load in a host that
// lacks a function.
extern "C" __declspec(dllexport) int icrxEntryPoint(unsigned request, void* /*packet*/) {
    try {
        if (request > SDS_LAST_REQUEST) {
            return kRequestRefused;
        }
        if (request == SDS_LOAD) {
            return Load();
        }
        if (request == SDS_UNLOAD && hostIsBound) {
            UnregisterCommands();
        }
        if (request == SDS_INVOKE && hostIsBound) {
            InvokeCommand();
        }
    } catch (...) {
        // An exception of this compiler's means nothing to the host.
    }
    return kRequestServed;
}

}  // namespace tavrin::host
