#include "devhost/app/LoadedTexts.h"

#include <windows.h>

namespace devhost {

namespace {

constexpr wchar_t kModule[] = L"TavrinRes.dll";
constexpr DWORD kPathCapacity = 32'768;
constexpr int kTextCapacity = 256;  // as the plug-in reads texts

}  // namespace

std::wstring TextModulePath() {
    std::wstring path(kPathCapacity, L'\0');
    const HMODULE loaded = GetModuleHandleW(kModule);
    const DWORD length = loaded != nullptr
                             ? GetModuleFileNameW(loaded, path.data(), kPathCapacity)
                             : SearchPathW(nullptr, kModule, nullptr, kPathCapacity, path.data(), nullptr);
    path.resize(length < kPathCapacity ? length : 0);
    return path;
}

std::wstring LoadText(unsigned number) {
    const HMODULE module = LoadLibraryW(kModule);
    if (module == nullptr) {
        return {};
    }
    wchar_t text[kTextCapacity];
    const int length = LoadStringW(module, number, text, kTextCapacity);
    FreeLibrary(module);
    return std::wstring(text, static_cast<std::size_t>(length));
}

}  // namespace devhost
