// The item dialog: an item's picture at the left, its parameters in a grid at the right under a header that
// names the item. OK writes the values into the item's files; Cancel writes nothing.
//
// The dialog owns its controls, its brushes, the header's font and the distance items that it gives to the
// grid. The records refer to the distance items and to the grid's rows.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "imagedlg/PictureCtrl.h"
#include "itemdlg/ItemContents.h"
#include "itemdlg/ParamRecord.h"
#include "memory/MemoryFence.h"
#include "propgrid/DistanceItem.h"
#include "propgrid/PropertyGrid.h"
#include "res/resource.h"

namespace tavrin::itemdlg {

class CTavrinWndDlg : public CDialog {
    DECLARE_DYNAMIC(CTavrinWndDlg)

public:
    enum { IDD = IDD_ITEM };

    explicit CTavrinWndDlg(CWnd* parent = nullptr);
    ~CTavrinWndDlg() override;

    // Fills the grid, the records, the header and the window's title from the working file (baseName +
    // "_TMP.TXT"). Problems are shown to the user; the rows that were read stay.
    virtual void LoadTemplate();

    // Replaces each parameter line of the working file by an assignment line with the row's value. Lines are
    // found by their index alone, so the file must still have the layout that LoadTemplate read.
    virtual void WriteValueFile();

    // Rebuilds the parameter lines of the template file (baseName + ".TXT") with the rows' values as the new
    // defaults. Lines are found by the parameter's number.
    virtual void UpdateTemplateDefaults();

    // The number N of the last "<<N>>" in a line; 0 when it holds none.
    virtual int GetPlaceholderNumber(CString line);

    // Text `id` of TavrinRes.dll, also put into `out`; empty when there is none.
    virtual CString LoadResString(CString& out, unsigned id);

    virtual HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    // The item's base name (a path without extension, or a name that the host's search resolves), the factor
    // between the values in the files and the values shown, and the mode: 1 makes rows marked with "%"
    // read-only.
    virtual void SetArguments(CString baseName, double scale, int mode);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory([&] { return CDialog::WindowProc(message, wParam, lParam); });
    }
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    LRESULT OnSysColorChange(WPARAM zero, LPARAM alsoZero);
    void OnClickedOk();
    DECLARE_MESSAGE_MAP()

private:
    // Both outlive the grid and the header, which are declared after them.
    std::vector<std::unique_ptr<propgrid::CDistanceItem>> m_distanceItems;
    CFont m_headerFont;

    propgrid::CPropertyGrid m_grid;
    imagedlg::CPictureCtrl m_picture;
    ParamRecordMap m_params;  // by line index in the working file
    CString m_baseName;
    double m_scale = 1.0;
    CBrush m_backBrush;
    CBrush m_headerBrush;
    CStatic m_header;
    int m_mode = 0;

    using Rewriter = void (*)(std::vector<std::wstring>& lines, const ParamRecordMap& records,
                              const std::function<std::wstring(const ParamRecord&)>& valueTextOf);

    std::wstring FileName(std::wstring_view ending) const { return std::wstring(m_baseName).append(ending); }
    BOOL Initialize();
    bool ArgumentsAreUsable();
    void ShowPicture();
    void NameControls();
    void AddParameter(UINT section, const ItemParameter& parameter);
    UINT AddRow(UINT section, const ParamRecord& record, bool editable);
    std::wstring CurrentValueText(const ParamRecord& record) const;
    void RewriteFile(std::wstring_view ending, Rewriter rewrite);
    std::function<std::wstring(unsigned)> Texts();
    void ShowError(const wchar_t* text, const wchar_t* caption);
};

}  // namespace tavrin::itemdlg
