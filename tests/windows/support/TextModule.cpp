#include "tests/windows/support/TextModule.h"

#include <windows.h>

#include <string>

// The build's bin folder stands beside the folder of the test programs.
void OfferTextModule() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring folder = program;
    folder.erase(folder.find_last_of(L'\\'));
    SetDllDirectoryW((folder + L"\\..\\bin").c_str());
}

void TakeTextModuleAway() {
    SetDllDirectoryW(nullptr);
    while (const HMODULE module = GetModuleHandleW(L"TavrinRes.dll")) {
        FreeLibrary(module);
    }
}
