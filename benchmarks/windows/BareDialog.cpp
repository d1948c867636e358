#include "benchmarks/windows/BareDialog.h"

#include <objidl.h>
// After objidl.h.
#include <gdiplus.h>

namespace tavrin::benchmarks {

using namespace Gdiplus::DllExports;

namespace {

struct BareDialog {
    int pictureId;
    std::wstring picture;
    Gdiplus::GpImage* image = nullptr;
};

void Draw(const BareDialog& bare, const DRAWITEMSTRUCT& item) {
    Gdiplus::GpGraphics* graphics = nullptr;
    GdipCreateFromHDC(item.hDC, &graphics);
    GdipDrawImageRectI(graphics, bare.image, 0, 0, item.rcItem.right, item.rcItem.bottom);
    GdipDeleteGraphics(graphics);
}

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const bare = reinterpret_cast<BareDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (message) {
        case WM_INITDIALOG: {
            SetWindowLongPtrW(dialog, DWLP_USER, lParam);
            auto& made = *reinterpret_cast<BareDialog*>(lParam);
            GdipLoadImageFromFile(made.picture.c_str(), &made.image);
            const HWND control = GetDlgItem(dialog, made.pictureId);
            SetWindowLongPtrW(control, GWL_STYLE, GetWindowLongPtrW(control, GWL_STYLE) | SS_OWNERDRAW);
            return TRUE;
        }
        case WM_DRAWITEM:
            Draw(*bare, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, LOWORD(wParam));
            }
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

INT_PTR ShowBareDialog(HMODULE resources, int id, int pictureId, const std::wstring& picture, HWND owner) {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    BareDialog bare = {pictureId, picture};
    const INT_PTR result =
        DialogBoxParamW(resources, MAKEINTRESOURCEW(id), owner, Procedure, reinterpret_cast<LPARAM>(&bare));
    GdipDisposeImage(bare.image);
    Gdiplus::GdiplusShutdown(token);
    return result;
}

}  // namespace tavrin::benchmarks
