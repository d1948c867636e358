#include "imagedlg/PictureCtrl.h"

#include <algorithm>

// The header takes min and max for macros of the system's, which are turned off.
namespace Gdiplus {
using std::max;  // NOLINT(misc-unused-using-decls): by the header
using std::min;  // NOLINT(misc-unused-using-decls)
}  // namespace Gdiplus
#include <gdiplus.h>

namespace tavrin::imagedlg {

using namespace Gdiplus::DllExports;

namespace {

// The two GDI+ objects of one paint; each is released with its scope, drawn or not.
struct CGraphics {
    explicit CGraphics(HDC dc) { GdipCreateFromHDC(dc, &handle); }
    ~CGraphics() { GdipDeleteGraphics(handle); }
    CGraphics(const CGraphics&) = delete;
    CGraphics& operator=(const CGraphics&) = delete;
    Gdiplus::GpGraphics* handle = nullptr;
};

struct CImage {
    explicit CImage(IStream* stream) { GdipLoadImageFromStream(stream, &handle); }
    ~CImage() { GdipDisposeImage(handle); }
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;
    Gdiplus::GpImage* handle = nullptr;
};

}  // namespace

BEGIN_MESSAGE_MAP(CPictureCtrl, CStatic)
    ON_MESSAGE(WM_GETOBJECT, &CPictureCtrl::OnGetAccessible)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CPictureCtrl::CPictureCtrl() {
    const Gdiplus::GdiplusStartupInput input;  // version 1, no callback, nothing suppressed
    Gdiplus::GdiplusStartup(&m_gdiplusToken, &input, nullptr);
}

CPictureCtrl::~CPictureCtrl() {
    m_loaded = FALSE;
    ReleaseImageStream();
    Gdiplus::GdiplusShutdown(m_gdiplusToken);
}

void CPictureCtrl::PreSubclassWindow() {
    CStatic::PreSubclassWindow();
    // The dialog resources leave the style out and rely on this.
    ModifyStyle(0, SS_OWNERDRAW);
}

LRESULT CPictureCtrl::OnGetAccessible(WPARAM flags, LPARAM object) {
    const std::optional<LRESULT> answer = m_access.Answer(flags, object);
    return answer ? *answer : Default();
}

void CPictureCtrl::OnDestroy() {
    m_access.Disconnect();
    CStatic::OnDestroy();
}

BOOL CPictureCtrl::LoadFromFile(const CString& path) {
    SetLastError(0);
    m_loaded = FALSE;
    ReleaseImageStream();
    const HRESULT created = CreateStreamOnHGlobal(nullptr, TRUE, &m_stream);
    if (FAILED(created)) {
        SetLastError(static_cast<DWORD>(created));
        return FALSE;
    }
    if (!ReadFileIntoStream(path)) {
        const DWORD reason = GetLastError();
        ReleaseImageStream();
        SetLastError(reason);
        return FALSE;
    }
    m_loaded = TRUE;
    // Before the window exists there is nothing to repaint; a null handle would mean the whole screen.
    if (m_hWnd != nullptr) {
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
        ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    return TRUE;
}

// Copies the file into the stream. False, with the reason as last error, when either fails.
bool CPictureCtrl::ReadFileIntoStream(const CString& path) {
    try {
        CFile file(path, CFile::modeRead | CFile::typeBinary);
        BYTE buffer[1024] = {};
        while (const UINT count = file.Read(buffer, sizeof(buffer))) {
            const HRESULT written = m_stream->Write(buffer, count, nullptr);
            if (written != S_OK) {
                SetLastError(static_cast<DWORD>(written));
                return false;
            }
        }
    } catch (CFileException* exception) {
        SetLastError(static_cast<DWORD>(exception->m_lOsError));
        exception->Delete();
        return false;
    }
    return true;
}

void CPictureCtrl::ReleaseImageStream() {
    if (m_stream == nullptr) {
        return;
    }
    // Down to zero on purpose: the bytes go even if something else still counts a reference.
    while (m_stream->Release() != 0) {
    }
    m_stream = nullptr;
}

void CPictureCtrl::DrawItem(LPDRAWITEMSTRUCT drawItem) {
    if (m_loaded) {
        Draw(drawItem->hDC);
    }
}

BOOL CPictureCtrl::OnEraseBkgnd(CDC* pDC) {
    if (!m_loaded) {
        return static_cast<BOOL>(Default());
    }
    Draw(pDC == nullptr ? nullptr : pDC->GetSafeHdc());
    return TRUE;
}

// Stretches the picture over the client area. The decoder reads from the stream's position, so each
// paint starts at the beginning again.
void CPictureCtrl::Draw(HDC dc) const {
    RECT area;
    ::GetClientRect(m_hWnd, &area);
    m_stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const CGraphics graphics(dc);
    const CImage image(m_stream);
    GdipDrawImageRectI(graphics.handle, image.handle, area.left, area.top, area.right - area.left,
                       area.bottom - area.top);
}

}  // namespace tavrin::imagedlg
