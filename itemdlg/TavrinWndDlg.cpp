#include "itemdlg/TavrinWndDlg.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "itemdlg/ItemContents.h"
#include "itemdlg/ItemFiles.h"
#include "itemdlg/ItemMessages.h"
#include "itemdlg/TextFile.h"
#include "res/TextLibrary.h"
#include "sds/FindFile.h"

namespace tavrin::itemdlg {

namespace {

constexpr COLORREF kBackColor = 0xE1E1E1;
constexpr COLORREF kHeaderColor = 0xC8C8C8;
constexpr int kGutterWidth = 210;  // pixels

constexpr const wchar_t* kErrorCaption = L"Error!";
constexpr const wchar_t* kSystemCaption = nullptr;  // the system's own default
constexpr const wchar_t* kUnableToOpen = L"Error - unable to open file";
constexpr const wchar_t* kUnableToWrite = L"Error - unable to write file";

}  // namespace

IMPLEMENT_DYNAMIC(CTavrinWndDlg, CDialog)

CTavrinWndDlg::CTavrinWndDlg(CWnd* parent) : CDialog(IDD, parent) {}

CTavrinWndDlg::~CTavrinWndDlg() = default;

void CTavrinWndDlg::SetArguments(CString baseName, double scale, int mode) {
    m_baseName = baseName;
    m_scale = scale;
    m_mode = mode;
}

void CTavrinWndDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ITEM_GRID, m_grid);
    DDX_Control(pDX, IDC_ITEM_PICTURE, m_picture);
    DDX_Control(pDX, IDC_ITEM_HEADER, m_header);
}

BEGIN_MESSAGE_MAP(CTavrinWndDlg, CDialog)
    ON_WM_CTLCOLOR()
    ON_MESSAGE(WM_SYSCOLORCHANGE, &CTavrinWndDlg::OnSysColorChange)
    ON_BN_CLICKED(IDOK, &CTavrinWndDlg::OnClickedOk)
END_MESSAGE_MAP()

// A dialog that could not be filled must not stay open: OK would write what was not shown.
BOOL CTavrinWndDlg::OnInitDialog() {
    try {
        return Initialize();
    } catch (...) {
        EndDialog(IDCANCEL);
        throw;
    }
}

BOOL CTavrinWndDlg::Initialize() {
    m_backBrush.CreateSolidBrush(kBackColor);
    m_headerBrush.CreateSolidBrush(kHeaderColor);
    CDialog::OnInitDialog();
    if (!ArgumentsAreUsable()) {
        PostMessage(WM_CLOSE);
        return FALSE;
    }
    SetWindowText(m_baseName);
    ShowPicture();
    m_headerFont.CreatePointFont(160, L"Microsoft Sans Serif");
    m_header.SetFont(&m_headerFont, TRUE);
    m_grid.SetBackColor(kBackColor);
    m_grid.SetShadeColor(kHeaderColor);
    m_grid.SetKeyboardEditing(true);
    LoadTemplate();
    NameControls();
    return TRUE;
}

// For assistive technology: the picture shows the item that the dialog's title names, the grid stands under
// its header, whose text is indented by blanks.
void CTavrinWndDlg::NameControls() {
    CString text;
    GetWindowText(text);
    m_picture.SetAccessibleName(text);
    m_header.GetWindowText(text);
    const std::wstring header(text);
    m_grid.SetAccessibleName(header.substr(std::min(header.find_first_not_of(L' '), header.size())));
}

HBRUSH CTavrinWndDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT /*nCtlColor*/) {
    if (pWnd->GetDlgCtrlID() != IDC_ITEM_HEADER) {
        return m_backBrush;
    }
    pDC->SetBkColor(kHeaderColor);
    return m_headerBrush;
}

// Windows tells top-level windows alone.
LRESULT CTavrinWndDlg::OnSysColorChange(WPARAM /*zero*/, LPARAM /*alsoZero*/) {
    m_grid.SendMessage(WM_SYSCOLORCHANGE);
    return Default();
}

// Closes with IDOK whatever happened to the files: what went wrong was shown.
void CTavrinWndDlg::OnClickedOk() {
    // A click on the button has ended an open edit already; the command alone has not.
    m_grid.EndEditing();
    WriteValueFile();
    UpdateTemplateDefaults();
    OnOK();
}

bool CTavrinWndDlg::ArgumentsAreUsable() {
    if (m_baseName.IsEmpty()) {
        ShowError(L"Please specify a file name!", kErrorCaption);
        return false;
    }
    const std::wstring workingFile = FileName(kWorkingFileEnding);
    if (!FindFile(workingFile)) {
        ShowError((L"File not found '" + workingFile + L"'!").c_str(), kErrorCaption);
        return false;
    }
    return true;
}

// An item without a picture is allowed.
void CTavrinWndDlg::ShowPicture() {
    if (const std::optional<std::wstring> picture = FindFile(FileName(kPictureEnding))) {
        m_picture.LoadFromFile(picture->c_str());
    }
}

void CTavrinWndDlg::LoadTemplate() {
    m_params.clear();
    m_grid.ResetContents();
    m_distanceItems.clear();
    m_grid.SetDisplayMode(propgrid::CPropertyGrid::DM_FLAT);
    m_grid.SetGutterWidth(kGutterWidth);
    const UINT section = m_grid.AddSection(L"Item Data");

    const std::optional<std::wstring> path = FindFile(FileName(kWorkingFileEnding));
    if (!path) {
        ShowError(kFileNotFoundMessage, kErrorCaption);
        return;
    }
    TextLines lines;
    const bool readWhole = ReadTextFile(*path, lines);
    const auto placeholder = [this](const std::wstring& text) { return GetPlaceholderNumber(text.c_str()); };
    const ItemContents item = ReadItem(lines, m_scale, m_mode, Texts(), placeholder);
    if (item.title) {
        m_header.SetWindowText(item.header.c_str());
        SetWindowText(item.title->c_str());
    }
    for (const ItemParameter& parameter : item.parameters) {
        AddParameter(section, parameter);
    }
    if (!readWhole) {
        ShowError(kUnableToOpen, kSystemCaption);
    }
}

// Keeps the record of a parameter and adds its row. A record without row keeps the value that was read.
void CTavrinWndDlg::AddParameter(UINT section, const ItemParameter& parameter) {
    ParamRecord& record = m_params[parameter.record.lineIndex] = parameter.record;
    if (record.type == 'D') {
        m_distanceItems.push_back(std::make_unique<propgrid::CDistanceItem>(m_hWnd, record.realValue));
        record.customItem = m_distanceItems.back().get();
    }
    if (parameter.row == PR_SHOWN) {
        record.itemId = AddRow(section, record, parameter.editable);
    } else if (parameter.row == PR_INVALID_TYPE) {
        ShowError(kInvalidTypeMessage, L"Warning!");
    }
}

UINT CTavrinWndDlg::AddRow(UINT section, const ParamRecord& record, bool editable) {
    switch (record.type) {
        case 'D':
            return m_grid.AddCustomItem(section, record.label, record.customItem, editable);
        case 'I':
            return m_grid.AddIntegerItem(section, record.label, record.intValue, L"%d", editable);
        default:
            return m_grid.AddDoubleItem(section, record.label, record.realValue, L"%g", editable);
    }
}

// The text of a parameter's value as its row holds it now; what it was created with when the row gives none.
std::wstring CTavrinWndDlg::CurrentValueText(const ParamRecord& record) const {
    ParamRecord current = record;
    if (record.type == 'D') {
        current.realValue = static_cast<const propgrid::CDistanceItem*>(record.customItem)->GetDistance();
    } else if (record.type == 'I') {
        m_grid.GetItemValue(record.itemId, current.intValue);
    } else {
        m_grid.GetItemValue(record.itemId, current.realValue);
    }
    return ValueText(current, m_scale);
}

void CTavrinWndDlg::WriteValueFile() {
    RewriteFile(kWorkingFileEnding, RewriteWorkingFile);
}

void CTavrinWndDlg::UpdateTemplateDefaults() {
    RewriteFile(kTemplateFileEnding, RewriteTemplateFile);
}

// Reads a file, rewrites its lines and writes it. Deliberate: after a failed read it is written nevertheless
// and then ends where reading failed. Out of memory is reported as a failure of the step that it interrupted;
// the file stays as it is unless it was being written.
void CTavrinWndDlg::RewriteFile(std::wstring_view ending, Rewriter rewrite) {
    const wchar_t* failure = kUnableToOpen;
    try {
        const std::wstring name = FileName(ending);
        TextLines lines;
        const std::optional<std::wstring> source = FindFile(name);
        if (!source) {
            ShowError(kFileNotFoundMessage, kErrorCaption);
            return;
        }
        if (!ReadTextFile(*source, lines)) {
            ShowError(kUnableToOpen, kSystemCaption);
        }
        rewrite(lines, m_params, [this](const ParamRecord& record) { return CurrentValueText(record); });
        failure = kUnableToWrite;
        const std::optional<std::wstring> target = FindFile(name);
        if (!target) {
            ShowError(kFileNotFoundMessage, kErrorCaption);
            return;
        }
        if (!WriteTextFile(*target, lines)) {
            ShowError(kUnableToWrite, kSystemCaption);
        }
    } catch (const std::bad_alloc&) {
        ShowError(failure, kSystemCaption);
    }
}

int CTavrinWndDlg::GetPlaceholderNumber(CString line) {
    return PlaceholderNumber(line.GetString());
}

CString CTavrinWndDlg::LoadResString(CString& out, unsigned id) {
    static res::CTextLibrary texts;
    out = texts.Load(id);
    return out;
}

std::function<std::wstring(unsigned)> CTavrinWndDlg::Texts() {
    return [this](unsigned id) {
        CString text;
        return std::wstring(LoadResString(text, id));
    };
}

void CTavrinWndDlg::ShowError(const wchar_t* text, const wchar_t* caption) {
    ::MessageBoxW(m_hWnd, text, caption, MB_OK);
}

}  // namespace tavrin::itemdlg
