#include "devhost/fault/CodeAddress.h"

#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace devhost {

CodeAddress::CodeAddress(const void* address) {
    HMODULE module = nullptr;
    char path[MAX_PATH];
    if (!GetModuleHandleExA(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<const char*>(address), &module) ||
        GetModuleFileNameA(module, path, sizeof path) == 0) {
        std::snprintf(text, sizeof text, "%p", address);
        return;
    }
    path[sizeof path - 1] = '\0';
    const char* separator = std::strrchr(path, '\\');
    const auto offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(module);
    std::snprintf(text, sizeof text, "%.120s+0x%llx", separator != nullptr ? separator + 1 : path,
                  static_cast<unsigned long long>(offset));
}

void WriteToStandardError(const char* text) {
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(std::strlen(text)), &written, nullptr);
}

}  // namespace devhost
