// The texts of the companion resource module TavrinRes.dll, by number.
#pragma once

#include <afxwin.h>

namespace tavrin::res {

// Loads texts from TavrinRes.dll. The library is loaded by its bare name when the first text is requested,
// and stays loaded for the life of the process; an object of this class is therefore static.
class CTextLibrary {
public:
    // Text `id`, at most 255 characters. An empty text when the library cannot be loaded (the next
    // call tries again), holds no such text, or `id` is above 65535 and so cannot be a resource number.
    CString Load(unsigned id);

private:
    HINSTANCE m_library = nullptr;
};

}  // namespace tavrin::res
