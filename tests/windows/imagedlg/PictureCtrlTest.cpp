#include "imagedlg/PictureCtrl.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ImportHook.h"
#include "tests/windows/support/NoGdiPlus.h"
#include "tests/windows/support/Pixels.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::imagedlg;

extern "C" {
extern HRESULT(WINAPI* __imp_CreateStreamOnHGlobal)(HGLOBAL memory, BOOL deleted, IStream** stream)
    IMPORT_ENTRY(CreateStreamOnHGlobal, 12);
extern BOOL(WINAPI* __imp_ReadFile)(HANDLE file, LPVOID data, DWORD size, LPDWORD read,
                                    LPOVERLAPPED overlapped) IMPORT_ENTRY(ReadFile, 20);
}

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

// A picture of one colour, or of a left and a right one. Large enough for its middle to be free of the soft
// edge that stretching gives it.
std::string Colored(unsigned left, unsigned right) {
    constexpr int size = 64;
    std::vector<unsigned> pixels;
    for (int pixel = 0; pixel < size * size; ++pixel) {
        pixels.push_back(pixel % size < size / 2 ? left : right);
    }
    return BitmapFile(size, size, pixels);
}

std::string Red() {
    return Colored(0xFF0000, 0xFF0000);
}

std::string Blue() {
    return Colored(0x0000FF, 0x0000FF);
}

// A parent window that paints itself white and hands owner drawing on to its children.
class CParent : public CWnd {
public:
    CParent() {
        const LPCTSTR name = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                                                 static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        CreateEx(0, name, L"parent", WS_POPUP | WS_VISIBLE, CRect(50, 50, 450, 350), nullptr, 0);
    }
    ~CParent() override { DestroyWindow(); }
};

class PictureCtrl : public testing::Test {
protected:
    // The control over a plain static of the parent, as a dialog binds it.
    void Bind(CPictureCtrl& picture, const RECT& area) {
        const HWND control = ::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, area.left, area.top,
                                               area.right - area.left, area.bottom - area.top,
                                               m_parent.m_hWnd, nullptr, nullptr, nullptr);
        ASSERT_TRUE(picture.SubclassWindow(control));
        PumpMessages();
    }

    CTempFolder m_folder;
    CParent m_parent;
};

TEST_F(PictureCtrl, IsEmptyForAFileThatIsNotThere) {
    CPictureCtrl picture;
    Bind(picture, {0, 0, 100, 100});
    EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"missing.png").c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 100, 100}, RGB(255, 255, 255)), 10000);
}

TEST_F(PictureCtrl, StretchesThePictureOverTheWholeCell) {
    m_folder.Write(L"square.bmp", Colored(0xFF0000, 0x0000FF));
    CPictureCtrl picture;
    Bind(picture, {10, 10, 60, 210});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"square.bmp").c_str()));
    PumpMessages();
    const CClientPixels pixels(picture);
    // A square picture in a tall cell: both colours from top to bottom, no letterbox.
    for (const int y : {8, 100, 190}) {
        EXPECT_EQ(pixels.At(12, y), red) << y;
        EXPECT_EQ(pixels.At(37, y), blue) << y;
    }
}

// In a cell of the picture's own size nothing is softened: the outermost pixels have the picture's colour.
TEST_F(PictureCtrl, FillsTheCellToItsLastRowAndColumn) {
    m_folder.Write(L"square.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {10, 10, 74, 74});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"square.bmp").c_str()));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 64, 64}, red), 64 * 64);
}

TEST_F(PictureCtrl, DrawsAPngAgainOnEveryPaint) {
    CPictureCtrl picture;
    Bind(picture, {0, 0, 300, 200});
    ASSERT_TRUE(picture.LoadFromFile(SAMPLE_PICTURE));
    for (int paint = 0; paint < 3; ++paint) {
        picture.Invalidate();
        picture.UpdateWindow();
        EXPECT_GT(CClientPixels(picture).Count({0, 0, 150, 200}, RGB(255, 255, 255)), 5000) << paint;
        EXPECT_LT(CClientPixels(picture).Count({0, 0, 150, 200}, RGB(255, 255, 255)), 25000) << paint;
    }
}

TEST_F(PictureCtrl, TakesAnEmptyFileAndDrawsNothing) {
    m_folder.Write(L"empty.png", "");
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_TRUE(picture.LoadFromFile(m_folder.Path(L"empty.png").c_str()));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
}

TEST_F(PictureCtrl, TakesAFileThatIsNoPictureAndDrawsNothing) {
    m_folder.Write(L"text.png", std::string(5000, 'x'));
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_TRUE(picture.LoadFromFile(m_folder.Path(L"text.png").c_str()));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
}

TEST_F(PictureCtrl, DrawsNothingWhereGdiPlusCannotBeStarted) {
    const CNoGdiPlus system;
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
}

TEST_F(PictureCtrl, IsEmptyWhereNoStreamCanBeMade) {
    const CImportHook create(
        __imp_CreateStreamOnHGlobal, +[](HGLOBAL, BOOL, IStream** stream) WINAPI {
            *stream = nullptr;
            return E_OUTOFMEMORY;
        });
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(E_OUTOFMEMORY));
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
}

// A memory stream that takes no bytes, with one reference too many.
class CFullStream : public IStream {
public:
    static CFullStream* s_last;
    ULONG references = 2;

    CFullStream() { s_last = this; }
    virtual ~CFullStream() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override {
        SetLastError(ERROR_SUCCESS);
        return --references;
    }
    HRESULT STDMETHODCALLTYPE Read(void*, ULONG, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Write(const void*, ULONG, ULONG*) override { return STG_E_MEDIUMFULL; }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }
};
CFullStream* CFullStream::s_last = nullptr;

TEST_F(PictureCtrl, IsEmptyWhereTheStreamTakesNoMoreAndLetsGoOfItHoweverOftenItIsReferredTo) {
    CFullStream stream;
    const CImportHook create(
        __imp_CreateStreamOnHGlobal, +[](HGLOBAL, BOOL, IStream** made) WINAPI {
            *made = CFullStream::s_last;
            return S_OK;
        });
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(STG_E_MEDIUMFULL));
    EXPECT_EQ(stream.references, 0U);
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
    // The file was closed on the way out.
    EXPECT_TRUE(::DeleteFileW(m_folder.Path(L"red.bmp").c_str()));
}

TEST_F(PictureCtrl, IsEmptyAfterAFileThatCannotBeReadToItsEnd) {
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    {
        const CImportHook read(
            __imp_ReadFile, +[](HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED) WINAPI {
                SetLastError(ERROR_CRC);
                return FALSE;
            });
        EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CRC));
    }
    PumpMessages();
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, RGB(255, 255, 255)), 2500);
}

TEST_F(PictureCtrl, ReplacesThePictureByTheNextOne) {
    m_folder.Write(L"red.bmp", Red());
    m_folder.Write(L"blue.bmp", Blue());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    EXPECT_EQ(CClientPixels(picture).At(25, 25), red);
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"blue.bmp").c_str()));
    EXPECT_EQ(CClientPixels(picture).At(25, 25), blue);
}

TEST_F(PictureCtrl, IsEmptyAfterALoadThatFailed) {
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"missing.bmp").c_str()));
    m_parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, red), 0);
}

TEST_F(PictureCtrl, KeepsAPictureThatIsLoadedBeforeTheWindowExists) {
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    Bind(picture, {0, 0, 50, 50});
    m_parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_EQ(CClientPixels(picture).At(25, 25), red);
}

TEST_F(PictureCtrl, MakesThePlainStaticOwnerDrawn) {
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    EXPECT_EQ(picture.GetStyle() & SS_OWNERDRAW, static_cast<DWORD>(SS_OWNERDRAW));
}

TEST_F(PictureCtrl, PaintsTheBackgroundOnRequest) {
    m_folder.Write(L"red.bmp", Red());
    CPictureCtrl picture;
    Bind(picture, {0, 0, 50, 50});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    CClientDC dc(&picture);
    dc.FillSolidRect(0, 0, 50, 50, blue);
    EXPECT_TRUE(picture.OnEraseBkgnd(&dc));
    EXPECT_EQ(CClientPixels(picture).At(25, 25), red);
    EXPECT_TRUE(picture.OnEraseBkgnd(nullptr));
}

// A picture control that records WM_ERASEBKGND.
class CAskedPicture : public CPictureCtrl {
public:
    bool defaultAsked = false;
    bool asked = false;

    BOOL OnEraseBkgnd(CDC* dc) override {
        asked = true;
        return CPictureCtrl::OnEraseBkgnd(dc);
    }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaultAsked = true;
        return CPictureCtrl::DefWindowProc(message, wParam, lParam);
    }
};

TEST_F(PictureCtrl, LeavesTheBackgroundToTheFrameworkWhileItIsEmpty) {
    CAskedPicture picture;
    Bind(picture, {0, 0, 50, 50});
    CClientDC dc(&picture);
    dc.FillSolidRect(0, 0, 50, 50, blue);
    picture.defaultAsked = false;
    picture.OnEraseBkgnd(&dc);
    EXPECT_TRUE(picture.defaultAsked);
    EXPECT_EQ(CClientPixels(picture).Count({0, 0, 50, 50}, blue), 2500);
}

TEST_F(PictureCtrl, LeavesTheBackgroundToTheFrameworkAfterALoadThatFailed) {
    m_folder.Write(L"red.bmp", Red());
    CAskedPicture picture;
    Bind(picture, {0, 0, 50, 50});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    EXPECT_FALSE(picture.LoadFromFile(m_folder.Path(L"missing.bmp").c_str()));
    CClientDC dc(&picture);
    picture.defaultAsked = false;
    picture.OnEraseBkgnd(&dc);
    EXPECT_TRUE(picture.defaultAsked);
}

TEST_F(PictureCtrl, NoMessageAsksItToPaintTheBackground) {
    m_folder.Write(L"red.bmp", Red());
    CAskedPicture picture;
    Bind(picture, {0, 0, 50, 50});
    ASSERT_TRUE(picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str()));
    CClientDC dc(&picture);
    picture.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc()));
    EXPECT_FALSE(picture.asked);
}

TEST_F(PictureCtrl, LeavesNoHandleAndNoBlockBehind) {
    m_folder.Write(L"red.bmp", Red());
    const auto cycle = [&] {
        CPictureCtrl picture;
        Bind(picture, {0, 0, 50, 50});
        picture.LoadFromFile(m_folder.Path(L"red.bmp").c_str());
        picture.LoadFromFile(m_folder.Path(L"missing.bmp").c_str());
        picture.LoadFromFile(SAMPLE_PICTURE);
        picture.DestroyWindow();
    };
    cycle();
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 50; ++round) {
        cycle();
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
