#include "res/TextLibrary.h"

namespace tavrin::res {

namespace {

// Makes `resources` the module's resource handle until the end of the scope.
class CResourceScope {
public:
    explicit CResourceScope(HINSTANCE resources) : m_previous(AfxGetResourceHandle()) {
        AfxSetResourceHandle(resources);
    }
    ~CResourceScope() { AfxSetResourceHandle(m_previous); }
    CResourceScope(const CResourceScope&) = delete;
    CResourceScope& operator=(const CResourceScope&) = delete;

private:
    HINSTANCE m_previous;
};

}  // namespace

CString CTextLibrary::Load(unsigned id) {
    if (m_library == nullptr) {
        m_library = LoadLibraryW(L"TavrinRes.dll");
    }
    // Only the low 16 bits reach the resource search: a larger number would find another text.
    if (m_library == nullptr || id > 0xFFFF) {
        return {};
    }
    const CResourceScope scope(m_library);
    wchar_t text[256];
    const int length = LoadStringW(m_library, id, text, 256);
    return {text, length};
}

}  // namespace tavrin::res
