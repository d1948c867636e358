// GridGallery.exe: shows the gallery.
//
//     GridGallery.exe                      opens it; each change goes to standard output too
//     GridGallery.exe --monkey EVENTS SEED feeds it random input instead; exit status 1 when that left
//                                          anything behind
#include <afxwin.h>

#include <cstdio>
#include <string>

#include "gallery/GalleryDialog.h"
#include "gallery/Monkey.h"
#include "handles/ComApartment.h"

namespace {

// The framework finds the program's dialog through this object.
CWinApp application(L"GridGallery");

constexpr int kStatusWrongUse = 2;

int RunMonkey(const wchar_t* events, const wchar_t* seed) {
    tavrin::gallery::CMonkey monkey(static_cast<int>(std::wcstol(events, nullptr, 10)),
                                    static_cast<unsigned>(std::wcstoul(seed, nullptr, 10)));
    return monkey.Run();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    // Assistive technology asks the grid through COM.
    const tavrin::handles::CComApartment apartment;
    if (__argc == 4 && std::wstring(__wargv[1]) == L"--monkey") {
        return RunMonkey(__wargv[2], __wargv[3]);
    }
    if (__argc != 1) {
        std::fputs("usage: GridGallery.exe [--monkey EVENTS SEED]\n", stderr);
        return kStatusWrongUse;
    }
    tavrin::gallery::CGalleryDialog().DoModal();
    return 0;
}
