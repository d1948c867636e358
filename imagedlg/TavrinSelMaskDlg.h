// The choice dialog: up to six named choices, each a picture (a slide) in a cell. One cell is selected, by a
// click or by typing its number, and has a black frame; OK, Enter and a double-click choose it.
// ChoiceLayout.h defines the layout.
//
// Fill it, load the slides, then run it:
//
//     CTavrinSelMaskDlg dialog(parent);
//     dialog.SetArguments(L"Replace", 0);
//     dialog.AddChoice(L"door_single");
//     ...
//     dialog.LoadSlides();
//     if (dialog.DoModal() == IDOK)
//         use(dialog.GetResult(), dialog.GetSelectedName());
//
// With no choice or with more than six DoModal returns IDCANCEL and nothing is seen. Cells are numbered
// from 1, choices from 0.
#pragma once

#include <afxwin.h>

#include <array>
#include <map>

#include "imagedlg/ChoiceLayout.h"
#include "imagedlg/PictureCtrl.h"
#include "memory/MemoryFence.h"
#include "res/resource.h"

namespace tavrin::imagedlg {

class CTavrinSelMaskDlg : public CDialog {
    DECLARE_DYNAMIC(CTavrinSelMaskDlg)

public:
    enum { IDD = IDD_CHOICE };

    // How the dialog ended with IDOK; part of the result that LISP routines compare with.
    enum EResult : int {
        RESULT_CHOSEN = 100,    // OK, Enter, a double-click
        RESULT_REPLACE = 1000,  // the Replace button
    };

    explicit CTavrinSelMaskDlg(CWnd* parent = nullptr);

    // The caption of the Replace button, and whether AddChoice takes only names with a flat slide (any
    // value but 0).
    void SetArguments(const CString& replaceText, int skip3D);

    // Takes the name as the next choice if the host finds a slide for it, NAME_t.png or, where those in
    // space count too, NAME_t_3d.png. False when it finds none; the name is dropped.
    bool AddChoice(const CString& name);

    unsigned GetCount() const { return m_count; }

    // After DoModal returned IDOK. The name is empty when the selected cell has no choice.
    int GetResult() const { return m_result; }
    CString GetSelectedName() { return m_choices[m_selectedChoice]; }

    virtual HBRUSH GetBackgroundBrush();
    virtual void RefreshSlides();

    // The file to show for a choice: its flat slide, else its 3D one; "empty.png" when the host finds neither
    // any more or the name is empty. When that is missing too, a message box says so and the path is empty.
    virtual CString GetSlidePath(CString name);
    // Empty, without a message, when there is no "logo.png".
    virtual CString GetLogoPath();

    // Selects the cell, if it can be, and moves the black frame to it. Works before the window exists.
    virtual void SelectCell(int cell);
    // Selects the cell, if it can be, and ends the dialog with it.
    virtual void ActivateCell(int cell);

    // Enables or disables the control with this id, if there is one.
    virtual void EnableItem(UINT id, BOOL enable);

    // Loads every cell's picture and selects cell 1. May be called before the window exists.
    virtual void LoadSlides();

    // Cuts the window to the cells in use, moves the buttons into it and centres it over its owner.
    virtual void ArrangeForCount();

    virtual bool IsCellSelectable(int cell);
    virtual void PaintFrames();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CDialog::WindowProc(message, wParam, lParam); });
    }
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    void OnPaint();
    void OnClickedOk();
    void OnClickedCell(UINT id);
    void OnDoubleClickedCell(UINT id);
    void OnClickedReplace();
    DECLARE_MESSAGE_MAP()

private:
    CString GetCellPath(int cell);
    CPictureCtrl& PictureOf(int cell);
    void NamePictures();
    void EndWith(EResult result);
    CRect AreaOf(const CWnd& control);

    std::array<CPictureCtrl, kChoiceCells> m_pictures;
    CBrush m_brush;  // white, behind everything
    unsigned m_count = 0;
    int m_selectedChoice = 0;  // from 0
    int m_selectedCell = 0;    // from 0
    int m_result = 0;          // EResult once the dialog ended with IDOK
    int m_skip3D = 0;
    // By index. Looking an index up that it does not hold inserts the empty name.
    std::map<int, CString> m_choices;
    CString m_replaceText;
    CButton m_replaceButton;
};

}  // namespace tavrin::imagedlg
