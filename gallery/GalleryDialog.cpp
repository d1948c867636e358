// The gallery's dialog: what stands in the grid, and the grid's switches.
#include "gallery/GalleryDialog.h"

#include <cstdio>
#include <cwchar>
#include <string>

#include "gallery/resource.h"

namespace tavrin::gallery {

BEGIN_MESSAGE_MAP(CGalleryDialog, CDialog)
    ON_MESSAGE(propgrid::WM_GRID_ITEM_CHANGED, &CGalleryDialog::OnGridItemChanged)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_MODE_CATEGORIZED, IDC_MODE_FLAT, &CGalleryDialog::OnClickedMode)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_SHADE_HEADERS, IDC_BOLD_EDITABLE, &CGalleryDialog::OnClickedFlag)
    ON_BN_CLICKED(IDC_ACCEPT_VALUES, &CGalleryDialog::OnClickedAcceptValues)
    ON_BN_CLICKED(IDC_RESET, &CGalleryDialog::OnClickedReset)
    ON_WM_SIZE()
    ON_MESSAGE(WM_GETMINMAXINFO, &CGalleryDialog::OnGetMinMaxInfo)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

namespace {

constexpr int kInitialGloss = 40;
constexpr int kRowCount = 100;

// The check boxes and what they switch.
struct Flag {
    int id;
    bool (propgrid::CPropertyGrid::*get)() const;
    void (propgrid::CPropertyGrid::*set)(bool);
};
constexpr Flag kFlags[] = {
    {IDC_SHADE_HEADERS, &propgrid::CPropertyGrid::GetShadeHeaders, &propgrid::CPropertyGrid::SetShadeHeaders},
    {IDC_DRAW_LINES, &propgrid::CPropertyGrid::GetDrawLines, &propgrid::CPropertyGrid::SetDrawLines},
    {IDC_DRAW_DIVIDER, &propgrid::CPropertyGrid::GetDrawDivider, &propgrid::CPropertyGrid::SetDrawDivider},
    {IDC_FOCUS_NON_EDITABLE, &propgrid::CPropertyGrid::GetFocusNonEditable,
     &propgrid::CPropertyGrid::SetFocusNonEditable},
    {IDC_BOLD_MODIFIED, &propgrid::CPropertyGrid::GetBoldModified, &propgrid::CPropertyGrid::SetBoldModified},
    {IDC_BOLD_EDITABLE, &propgrid::CPropertyGrid::GetBoldEditable, &propgrid::CPropertyGrid::SetBoldEditable},
};

// How the controls take part in a change of the dialog's size: each edge stays or goes along, as 0 or 1.
struct Anchor {
    int id;
    int left, top, right, bottom;
};
constexpr Anchor kAnchors[] = {
    {IDC_GALLERY_GRID, 0, 0, 1, 1},
    {IDC_MODE_FRAME, 1, 0, 1, 0},
    {IDC_MODE_CATEGORIZED, 1, 0, 1, 0},
    {IDC_MODE_SORTED, 1, 0, 1, 0},
    {IDC_MODE_FLAT, 1, 0, 1, 0},
    {IDC_LOOK_FRAME, 1, 0, 1, 0},
    {IDC_SHADE_HEADERS, 1, 0, 1, 0},
    {IDC_DRAW_LINES, 1, 0, 1, 0},
    {IDC_DRAW_DIVIDER, 1, 0, 1, 0},
    {IDC_FOCUS_NON_EDITABLE, 1, 0, 1, 0},
    {IDC_BOLD_MODIFIED, 1, 0, 1, 0},
    {IDC_BOLD_EDITABLE, 1, 0, 1, 0},
    {IDC_ACCEPT_VALUES, 1, 0, 1, 0},
    {IDC_RESET, 1, 0, 1, 0},
    {IDC_LOG_LABEL, 1, 0, 1, 0},
    {IDC_GALLERY_LOG, 1, 0, 1, 1},
    {IDOK, 1, 1, 1, 1},
    {IDCANCEL, 1, 1, 1, 1},
};

void PrintLine(const std::wstring& line) {
    std::string bytes(line.size() * 3, '\0');
    const int count = WideCharToMultiByte(CP_UTF8, 0, line.c_str(), static_cast<int>(line.size()),
                                          bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(count));
    std::puts(bytes.c_str());
    std::fflush(stdout);
}

}  // namespace

CGalleryDialog::CGalleryDialog() : CDialog(IDD_GALLERY), m_gloss(kInitialGloss) {
    m_grid.SetUndefinedText(L"(not given)");
    m_grid.SetAccessibleName(L"Values");
    m_grid.SetKeyboardEditing(true);
    Fill();
}

void CGalleryDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_GALLERY_GRID, m_grid);
}

void CGalleryDialog::Fill() {
    FillBasics();
    FillChoices();
    FillDates();
    FillPaths();
    FillLooks();
    FillStates();
    m_grid.AddSection(L"Empty");
    FillManyRows();
}

void CGalleryDialog::FillBasics() {
    const UINT section = m_grid.AddSection(L"Basics");
    m_grid.AddStringItem(section, L"Name", L"Oak door");
    m_grid.AddTextItem(section, L"Notes", L"Two coats of paint\r\nKey at the office");
    m_grid.AddIntegerItem(section, L"Count", 3);
    m_grid.AddDoubleItem(section, L"Width", 80.5);
    m_grid.AddDoubleItem(section, L"Weight", 31.25, L"%.3f kg");
}

void CGalleryDialog::FillChoices() {
    const UINT section = m_grid.AddSection(L"Choices");
    m_grid.AddComboItem(section, L"Swing", {L"Left", L"Right", L"Both ways"}, 1);
    m_grid.AddComboItem(section, L"No choices", {}, 0);
    m_grid.AddBooleanItem(section, L"Glazed", true);
}

void CGalleryDialog::FillDates() {
    const UINT section = m_grid.AddSection(L"Dates");
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    m_grid.AddDateItem(section, L"Ordered", COleDateTime(2024, 3, 15, 0, 0, 0), L"%Y-%m-%d");
    m_grid.AddDateTimeItem(section, L"Delivered", COleDateTime(2024, 4, 2, 10, 30, 0), L"%Y-%m-%d %H:%M");
    m_grid.AddDateItem(section, L"Paid", none);
}

void CGalleryDialog::FillPaths() {
    const UINT section = m_grid.AddSection(L"Paths");
    m_grid.AddFileItem(section, L"Drawing", L"C:\\windows\\win.ini",
                       L"Settings (*.ini)|*.ini|All files (*.*)|*.*||");
    m_grid.AddFolderItem(section, L"Archive", L"C:\\windows", L"Where the drawings are kept:");
}

void CGalleryDialog::FillLooks() {
    const UINT section = m_grid.AddSection(L"Looks");
    LOGFONTW font = {};
    font.lfHeight = -11;
    font.lfWeight = FW_NORMAL;
    std::wcscpy(font.lfFaceName, L"Tahoma");
    m_grid.AddColorItem(section, L"Paint", RGB(200, 80, 40));
    m_grid.AddFontItem(section, L"Lettering", font);
    m_gloss.SetPercent(kInitialGloss);
    m_gloss.SetId(m_grid.AddCustomItem(section, L"Gloss", &m_gloss));
}

void CGalleryDialog::FillStates() {
    const UINT section = m_grid.AddSection(L"States");
    m_grid.AddStringItem(section, L"Article", L"D-4711", false);
    m_grid.AddBooleanItem(section, L"In stock", true, false);
    m_grid.AddStringItem(section, L"Maker", std::wstring(), true, true);
    m_grid.AddIntegerItem(section, L"Rating", 0, L"%d", true, true);
}

void CGalleryDialog::FillManyRows() {
    const UINT section = m_grid.AddSection(L"Many rows", true);
    for (int row = 1; row <= kRowCount; ++row) {
        m_grid.AddIntegerItem(section, L"Row " + std::to_wstring(row), row);
    }
}

BOOL CGalleryDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckDlgButton(IDC_MODE_CATEGORIZED + static_cast<int>(m_grid.GetDisplayMode()), BST_CHECKED);
    ShowFlags();
    RememberLayout();
    return TRUE;
}

void CGalleryDialog::ShowFlags() {
    for (const Flag& flag : kFlags) {
        CheckDlgButton(flag.id, (m_grid.*flag.get)() ? BST_CHECKED : BST_UNCHECKED);
    }
}

// The button may be pressed by the Enter key or a mnemonic, without the focus leaving an open editor.
void CGalleryDialog::OnOK() {
    m_grid.EndEditing();
    CDialog::OnOK();
}

LRESULT CGalleryDialog::OnGridItemChanged(WPARAM item, LPARAM /*zero*/) {
    const UINT id = static_cast<UINT>(item);
    propgrid::EItemType kind = propgrid::IT_STRING;
    m_grid.GetItemKind(id, kind);
    const std::wstring value =
        kind == propgrid::IT_CUSTOM ? m_gloss.GetStringValue() : m_grid.GetItemText(id);
    const std::wstring line = m_grid.GetItemName(id) + L" = " + value;
    const LRESULT index =
        SendDlgItemMessage(IDC_GALLERY_LOG, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    SendDlgItemMessage(IDC_GALLERY_LOG, LB_SETTOPINDEX, static_cast<WPARAM>(index));
    PrintLine(line);
    return 0;
}

void CGalleryDialog::OnClickedMode(UINT id) {
    m_grid.SetDisplayMode(id - IDC_MODE_CATEGORIZED);
}

void CGalleryDialog::OnClickedFlag(UINT id) {
    for (const Flag& flag : kFlags) {
        if (flag.id == static_cast<int>(id)) {
            (m_grid.*flag.set)(IsDlgButtonChecked(flag.id) == BST_CHECKED);
        }
    }
}

void CGalleryDialog::OnClickedAcceptValues() {
    m_grid.EndEditing();
    m_grid.AcceptValues();
}

// The grid keeps the focused row's id over the filling.
void CGalleryDialog::OnClickedReset() {
    m_grid.EndEditing();
    m_grid.ResetContents();
    m_grid.SetFocusedItem(propgrid::CPropertyGrid::NO_ID);
    Fill();
    SendDlgItemMessage(IDC_GALLERY_LOG, LB_RESETCONTENT);
}

void CGalleryDialog::RememberLayout() {
    CRect rect;
    GetWindowRect(&rect);
    m_smallest = rect.Size();
    GetClientRect(&rect);
    m_initialSize = rect.Size();
    for (const Anchor& anchor : kAnchors) {
        GetDlgItem(anchor.id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        m_initial.push_back(rect);
    }
}

void CGalleryDialog::OnSize(UINT type, int width, int height) {
    CDialog::OnSize(type, width, height);
    if (m_initial.empty() || type == SIZE_MINIMIZED) {
        return;
    }
    const int dx = width - m_initialSize.cx;
    const int dy = height - m_initialSize.cy;
    for (std::size_t i = 0; i < m_initial.size(); ++i) {
        const Anchor& anchor = kAnchors[i];
        const CRect& from = m_initial[i];
        const CRect to(from.left + anchor.left * dx, from.top + anchor.top * dy,
                       from.right + anchor.right * dx, from.bottom + anchor.bottom * dy);
        GetDlgItem(anchor.id)->MoveWindow(&to);
    }
    Invalidate();
}

LRESULT CGalleryDialog::OnGetMinMaxInfo(WPARAM /*zero*/, LPARAM info) {
    reinterpret_cast<MINMAXINFO*>(info)->ptMinTrackSize = {m_smallest.cx, m_smallest.cy};
    return 0;
}

BOOL CGalleryDialog::OnHelpInfo(HELPINFO* /*info*/) {
    PrintRectangles();
    return TRUE;
}

void CGalleryDialog::PrintRectangles() {
    m_grid.UpdateWindow();
    for (UINT id = 0; id < m_grid.GetItemCount(); ++id) {
        CRect name;
        CRect value;
        if (!m_grid.GetItemRects(id, name, value) || value.IsRectEmpty()) {
            continue;
        }
        m_grid.MapWindowPoints(this, &value);
        PrintLine(L"rectangle " + std::to_wstring(value.left) + L' ' + std::to_wstring(value.top) + L' ' +
                  std::to_wstring(value.right) + L' ' + std::to_wstring(value.bottom) + L' ' +
                  m_grid.GetItemName(id));
    }
    PrintLine(L"rectangles end");
}

}  // namespace tavrin::gallery
