// The gallery: one property grid that holds every kind of value, check boxes for its appearance, and a log
// of what the user changed. An example for developers who put the grid on a dialog.
//
// Each change is also written to standard output, as a line "Width = 12.5" in UTF-8. F1 writes the rectangles
// of the values, for programs that drive the mouse: a line "rectangle LEFT TOP RIGHT BOTTOM NAME" for each
// value on display (in pixels of the dialog's client area), then the line "rectangles end".
#pragma once

#include <vector>

#include "gallery/PercentItem.h"
#include "propgrid/PropertyGrid.h"

namespace tavrin::gallery {

class CGalleryDialog final : public CDialog {
public:
    CGalleryDialog();

    const propgrid::CPropertyGrid& GetGrid() const { return m_grid; }
    propgrid::CPropertyGrid& GetGrid() { return m_grid; }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg LRESULT OnGridItemChanged(WPARAM item, LPARAM zero);
    afx_msg void OnClickedMode(UINT id);
    afx_msg void OnClickedFlag(UINT id);
    afx_msg void OnClickedAcceptValues();
    afx_msg void OnClickedReset();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnGetMinMaxInfo(WPARAM zero, LPARAM info);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()

private:
    void Fill();
    void FillBasics();
    void FillChoices();
    void FillDates();
    void FillPaths();
    void FillLooks();
    void FillStates();
    void FillManyRows();
    void ShowFlags();
    void RememberLayout();
    void PrintRectangles();

    CPercentItem m_gloss;  // before the grid: a custom item must outlive it
    propgrid::CPropertyGrid m_grid;
    CSize m_smallest;              // of the window
    CSize m_initialSize;           // of the client area
    std::vector<CRect> m_initial;  // of the controls that a resize moves, in their table's order
};

}  // namespace tavrin::gallery
