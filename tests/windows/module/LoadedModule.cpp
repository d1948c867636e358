#include "tests/windows/module/LoadedModule.h"

#include <stdexcept>
#include <string>

#include "sds/sds.h"
#include "tests/windows/support/FakeHost.h"

namespace {

std::wstring FolderOfThisProgram() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring folder = program;
    return folder.erase(folder.find_last_of(L'\\'));
}

template <typename Function>
void Fetch(HMODULE library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    if (function == nullptr) {
        throw std::runtime_error(std::string("a library cannot be loaded or lacks ") + name);
    }
}

}  // namespace

CLoadedModule::CLoadedModule()
    : m_library(LoadLibraryW((FolderOfThisProgram() + L"\\..\\bin\\TavrinWnd.dll").c_str())) {
    Fetch(m_library, "icrxEntryPoint", m_entry);
    Send(SDS_LOAD);
}

CLoadedModule::~CLoadedModule() {
    Send(SDS_UNLOAD);
    FreeLibrary(m_library);
}

int CLoadedModule::Invoke(int code) const {
    fakeHost.functionCode = code;
    return Send(SDS_INVOKE);
}

ModuleHeap::ModuleHeap() {
    // The program folder's own, which the module then finds loaded; never given back.
    const HMODULE library = LoadLibraryW(L"TD_Alloc.dll");
    Fetch(library, "td_live_blocks", liveBlocks);
    Fetch(library, "td_allocations", allocations);
    Fetch(library, "td_fail_after", failAfter);
    Fetch(library, "td_print_live", printLive);
}
