#include "devhost/window/ProgramVersion.h"

#include <windows.h>

#include <vector>

namespace devhost {

namespace {

std::wstring Value(const std::vector<BYTE>& version, const std::wstring& name) {
    void* text = nullptr;
    UINT length = 0;
    const std::wstring path = L"\\StringFileInfo\\040904b0\\" + name;
    if (!VerQueryValueW(version.data(), path.c_str(), &text, &length) || length == 0) {
        return {};
    }
    return static_cast<const wchar_t*>(text);
}

}  // namespace

std::wstring ProgramVersion() {
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    DWORD ignored = 0;
    std::vector<BYTE> version(GetFileVersionInfoSizeW(path.c_str(), &ignored));
    if (version.empty() ||
        !GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(version.size()), version.data())) {
        return {};
    }
    return Value(version, L"FileDescription") + L"\nVersion " + Value(version, L"ProductVersion");
}

}  // namespace devhost
