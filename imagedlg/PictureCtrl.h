// A static control that shows one picture file, stretched over its whole client area.
//
// It holds the file's bytes, not a decoded picture: each paint decodes them again, so a cell of any size
// costs no more memory than its file.
#pragma once

#include <afxwin.h>
#include <objidl.h>

#include "imagedlg/PictureAccess.h"
#include "memory/MemoryFence.h"

namespace tavrin::imagedlg {

class CPictureCtrl : public CStatic {
public:
    // Starts GDI+ for this control; the destructor stops it.
    CPictureCtrl();
    ~CPictureCtrl() override;

    // Takes the bytes of the file `path` and repaints. FALSE when it cannot be read: the control is then
    // empty, whatever it showed before, and GetLastError gives the reason (the file exception's system error,
    // -1 when there was none; the HRESULT of the memory stream). Whether the bytes are a picture shows only
    // in painting: a file that cannot be decoded, an empty one included, is loaded and draws nothing.
    // May be called before the window exists.
    BOOL LoadFromFile(const CString& path);

    // What assistive technology calls the picture: the window's text, which is not drawn. To be called once
    // the window exists.
    void SetAccessibleName(const CString& name) { SetWindowText(name); }
    // For assistive technology: SetSelectable says that the picture can be selected, by a click or by `key`;
    // SetSelected whether it is. Both work before the window exists.
    void SetSelectable(const std::wstring& key) { m_access.SetSelectable(key); }
    void SetSelected(bool selected) { m_access.SetSelected(selected); }

    // Paints like DrawItem, on `pDC`, and returns TRUE; what the framework returns when the control is
    // empty. Not wired to a message: the dialog's background must show where nothing is drawn.
    virtual BOOL OnEraseBkgnd(CDC* pDC);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CStatic::WindowProc(message, wParam, lParam); });
    }
    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;
    afx_msg LRESULT OnGetAccessible(WPARAM flags, LPARAM object);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void ReleaseImageStream();
    bool ReadFileIntoStream(const CString& path);
    void Draw(HDC dc) const;

    IStream* m_stream = nullptr;  // the file's bytes, owned; null when there are none
    BOOL m_loaded = FALSE;        // a file was read completely into the stream
    ULONG_PTR m_gdiplusToken = 0;
    CPictureAccess m_access{*this};
};

}  // namespace tavrin::imagedlg
