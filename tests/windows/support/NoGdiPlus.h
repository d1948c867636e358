// A system where GDI+ cannot be started: while an object lives, starting it fails, and so does what then is
// asked of it. For programs that draw pictures.
#pragma once

#include <objidl.h>
#include <windows.h>

#include "tests/windows/support/ImportHook.h"

extern "C" {
extern int(WINAPI* __imp_GdiplusStartup)(ULONG_PTR* token, const void* input, void* output)
    IMPORT_ENTRY(GdiplusStartup, 12);
extern int(WINAPI* __imp_GdipCreateFromHDC)(HDC dc, void** graphics) IMPORT_ENTRY(GdipCreateFromHDC, 8);
extern int(WINAPI* __imp_GdipLoadImageFromStream)(IStream* stream, void** image)
    IMPORT_ENTRY(GdipLoadImageFromStream, 8);
}

class CNoGdiPlus {
public:
    CNoGdiPlus() = default;

private:
    static constexpr int failed = 1;
    static constexpr int notInitialized = 18;

    static int WINAPI Start(ULONG_PTR*, const void*, void*) { return failed; }
    static int WINAPI Create(HDC, void**) { return notInitialized; }
    static int WINAPI Load(IStream*, void**) { return notInitialized; }

    const CImportHook<int(WINAPI*)(ULONG_PTR*, const void*, void*)> m_start{__imp_GdiplusStartup, Start};
    const CImportHook<int(WINAPI*)(HDC, void**)> m_create{__imp_GdipCreateFromHDC, Create};
    const CImportHook<int(WINAPI*)(IStream*, void**)> m_load{__imp_GdipLoadImageFromStream, Load};
};
