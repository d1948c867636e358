#include "sds/FindFile.h"

#include "sds/sds.h"

std::optional<std::wstring> FindFile(const std::wstring& name) {
    constexpr size_t capacity = 254;
    // Larger than what is passed: some hosts write their terminating zero after the capacity.
    wchar_t path[512] = {};
    if (sds_findfile(name.c_str(), path, capacity) != RTNORM) {
        return std::nullopt;
    }
    path[511] = L'\0';
    return path;
}
