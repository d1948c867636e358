#include "devhost/app/HeapLibrary.h"

#include "devhost/UserError.h"

namespace devhost {

namespace {

constexpr std::size_t kMaxListed = 20;

}  // namespace

CHeapLibrary::CHeapLibrary(const std::wstring& folder, bool checking) {
    const std::wstring path = folder + (checking ? L"\\checked\\TD_Alloc.dll" : L"\\TD_Alloc.dll");
    m_library = LoadLibraryW(path.c_str());
    if (m_library == nullptr) {
        throw CUserError(L"the allocator library '" + path + L"' cannot be loaded: DevHost needs it there");
    }
    m_liveBlocks = Find<decltype(td_live_blocks)>("td_live_blocks");
    m_liveBytes = Find<decltype(td_live_bytes)>("td_live_bytes");
    m_printLive = Find<decltype(td_print_live)>("td_print_live");
    if (m_liveBlocks == nullptr || m_liveBytes == nullptr) {
        throw CUserError(L"the allocator library '" + path + L"' is not DevHost's: it does not count blocks");
    }
}

void CHeapLibrary::PrintLive() const {
    if (m_printLive != nullptr) {
        m_printLive(kMaxListed);
    }
}

template <typename TFunction>
TFunction* CHeapLibrary::Find(const char* name) const {
    return reinterpret_cast<TFunction*>(reinterpret_cast<void*>(GetProcAddress(m_library, name)));
}

}  // namespace devhost
