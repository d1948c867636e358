// The property grid beside a list view of the same size with the same two columns of text: filling, painting,
// scrolling; what input costs by the number of rows, and what a row takes of memory.
#include <afxwin.h>
#include <commctrl.h>

#include <cstdio>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "benchmarks/BenchTable.h"
#include "benchmarks/windows/Turns.h"
#include "propgrid/PropertyGrid.h"

using namespace tavrin::benchmarks;

namespace {

using tavrin::propgrid::CPropertyGrid;

constexpr int kWidth = 400;  // pixels
constexpr int kHeight = 500;
constexpr int kScrollBarId = 1000;
constexpr std::size_t kBlockOverhead = 16;  // what a heap adds to a block on 64-bit Windows
constexpr const char* kArea = "grid";
constexpr const char* kListView = "list view";

constexpr std::size_t kMostRows = 100000;

struct BenchRowData {
    std::wstring name;
    double value;
    std::wstring valueText;
};

// Made once: what the rows are made of is no part of the work of adding them.
const std::vector<BenchRowData>& RowData() {
    static const std::vector<BenchRowData> rows = [] {
        std::vector<BenchRowData> all;
        for (std::size_t row = 0; row < kMostRows; ++row) {
            const double value = 0.5 * static_cast<double>(row);
            CString text;
            text.Format(L"%g", value);
            all.push_back({L"Parameter " + std::to_wstring(row), value, text.GetString()});
        }
        return all;
    }();
    return rows;
}

class CFrame : public CWnd {
public:
    CFrame() {
        const LPCTSTR name =
            AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        CreateEx(0, name, L"bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, 2 * kWidth, kHeight), nullptr, 0);
    }
    ~CFrame() override { DestroyWindow(); }
};

class CFilledGrid {
public:
    explicit CFilledGrid(CWnd& frame, int left = 0) {
        const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
        m_grid.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(left, 0, left + kWidth, kHeight), &frame, 1);
        m_grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
    }

    // To one section without rows.
    void Clear() {
        m_grid.ResetContents();
        m_section = m_grid.AddSection(L"Item Data");
    }
    void AddRows(std::size_t rows) {
        for (std::size_t row = 0; row < rows; ++row) {
            m_grid.AddDoubleItem(m_section, RowData()[row].name, RowData()[row].value);
        }
    }
    void Sort(bool sorted) {
        m_grid.SetDisplayMode(sorted ? CPropertyGrid::DM_SORTED : CPropertyGrid::DM_FLAT);
    }
    void Paint() {
        m_grid.Invalidate();
        m_grid.UpdateWindow();
    }
    void ScrollPage(bool down) {
        const HWND bar = ::GetDlgItem(m_grid, kScrollBarId);
        m_grid.SendMessage(WM_VSCROLL, down ? SB_PAGEDOWN : SB_PAGEUP, reinterpret_cast<LPARAM>(bar));
        m_grid.UpdateWindow();
    }

    // To the end of the rows, where a search from the first row on takes longest.
    void ScrollToEnd() {
        const HWND bar = ::GetDlgItem(m_grid, kScrollBarId);
        m_grid.SendMessage(WM_VSCROLL, SB_BOTTOM, reinterpret_cast<LPARAM>(bar));
    }
    void FocusRow(std::size_t row) { m_grid.SetFocusedItem(static_cast<UINT>(row)); }
    void PressDown() { m_grid.SendMessage(WM_KEYDOWN, VK_DOWN, 1); }
    void Hover() { m_grid.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(kWidth / 4, kHeight / 2)); }
    void ClickName() {
        m_grid.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(kWidth / 4, kHeight / 2));
        m_grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(kWidth / 4, kHeight / 2));
    }

private:
    CPropertyGrid m_grid;
    UINT m_section = 0;
};

class CFilledList {
public:
    explicit CFilledList(CWnd& frame)
        : m_list(::CreateWindowExW(0, WC_LISTVIEWW, L"",
                                   WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER, kWidth, 0, kWidth,
                                   kHeight, frame, nullptr, nullptr, nullptr)) {
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH | LVCF_FMT;
        column.cx = kWidth / 2 - ::GetSystemMetrics(SM_CXVSCROLL);
        for (int index = 0; index < 2; ++index) {
            ::SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                           reinterpret_cast<LPARAM>(&column));
        }
    }

    ~CFilledList() { ::DestroyWindow(m_list); }
    CFilledList(const CFilledList&) = delete;
    CFilledList& operator=(const CFilledList&) = delete;

    void Clear() { ::SendMessageW(m_list, LVM_DELETEALLITEMS, 0, 0); }
    void SetRedraw(bool redraw) { ::SendMessageW(m_list, WM_SETREDRAW, redraw ? TRUE : FALSE, 0); }
    void AddRows(std::size_t rows) {
        for (std::size_t row = 0; row < rows; ++row) {
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = static_cast<int>(row);
            item.pszText = const_cast<wchar_t*>(RowData()[row].name.c_str());  // the list only reads it
            ::SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            item.iSubItem = 1;
            item.pszText = const_cast<wchar_t*>(RowData()[row].valueText.c_str());
            ::SendMessageW(m_list, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }
    void Paint() {
        ::InvalidateRect(m_list, nullptr, TRUE);
        ::UpdateWindow(m_list);
    }
    void ScrollPage(bool down) {
        ::SendMessageW(m_list, WM_VSCROLL, down ? SB_PAGEDOWN : SB_PAGEUP, 0);
        ::UpdateWindow(m_list);
    }

private:
    HWND m_list;
};

// As a program does between two paints; else the system would show each paint on the screen within it.
void HandleMessages() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::DispatchMessageW(&message);
    }
}

void Row(const char* what, const std::string& size, double ours, const char* unit, const char* peer,
         double theirs, double bar) {
    PrintRow({kArea, what, size, ours, unit, peer, theirs, bar});
}

// What the heap holds, with what each block costs the heap itself.
std::size_t HeapSize() {
    using FCount = std::size_t (*)();
    const HMODULE library = ::GetModuleHandleW(L"TD_Alloc.dll");
    const auto count = [library](const char* name) {
        return reinterpret_cast<FCount>(reinterpret_cast<void*>(::GetProcAddress(library, name)))();
    };
    return count("td_live_bytes") + kBlockOverhead * count("td_live_blocks");
}

void MeasureMemory(CFilledGrid& grid, std::size_t rows) {
    grid.Clear();
    const std::size_t before = HeapSize();
    grid.AddRows(rows);
    std::size_t taken = HeapSize() - before;
    for (std::size_t row = 0; row < rows; ++row) {
        taken -= sizeof(wchar_t) * RowData()[row].name.size();
    }
    grid.Clear();
    Row("memory of a row beside its name", std::to_string(rows) + " rows",
        static_cast<double>(taken) / static_cast<double>(rows), "B", "limit", 400, 1);
}

// So that there is a page to be scrolled down.
template <class T>
void PageUp(T& control) {
    control.ScrollPage(false);
    HandleMessages();
}

// What a person does beside looking: none of it depends on the number of rows. The paint that follows is
// measured apart.
void MeasureInput(CFrame& frame) {
    constexpr const char* names[] = {"arrow key", "click", "hover"};
    constexpr std::size_t kFewRows = 100;
    CFilledGrid few(frame);
    CFilledGrid many(frame, kWidth);
    std::vector<Turn> turns;
    for (const auto& [grid, rows] : {std::pair(&few, kFewRows), std::pair(&many, kMostRows)}) {
        grid->Clear();
        grid->AddRows(rows);
        grid->Paint();
        const auto prepare = [grid = grid, rows = rows] {
            grid->FocusRow(rows - 3);
            grid->ScrollToEnd();
            HandleMessages();
        };
        turns.push_back({prepare, [grid = grid] { grid->PressDown(); }});
        turns.push_back({prepare, [grid = grid] { grid->ClickName(); }});
        turns.push_back({prepare, [grid = grid] { grid->Hover(); }});
    }
    const std::vector<double> times = MedianTurns(turns, 31);
    const std::size_t count = std::size(names);
    for (std::size_t index = 0; index < count; ++index) {
        Row(names[index], std::to_string(kMostRows) + " rows", times[count + index], "ns", "ours at 100",
            times[index], 2);
    }
}

// Beside the list view, and beside a thousand rows: the time for a row may not grow with their number. Twice
// as much is left for what the caches of the machine hold.
void MeasureAdding(CFilledGrid& grid, CFilledList& list, std::size_t rows) {
    constexpr std::size_t kMeasure = 1000;
    const std::string size = std::to_string(rows) + " rows";
    const auto refill = [&grid] {
        grid.Clear();
        grid.AddRows(kMeasure);
        grid.Clear();
    };
    list.SetRedraw(false);
    const std::vector<double> times = MedianTurns({{refill, [&] { grid.AddRows(kMeasure); }},
                                                   {[&] { grid.Clear(); }, [&] { grid.AddRows(rows); }},
                                                   {[&] { list.Clear(); }, [&] { list.AddRows(rows); }}},
                                                  rows > 10000 ? 5 : 11);
    list.SetRedraw(true);
    const double ours = times[1] / static_cast<double>(rows);
    Row("adding a row", size, ours, "ns", "limit", 1000, 1);
    Row("adding a row", size, ours, "ns", kListView, times[2] / static_cast<double>(rows), 0.2);
    if (rows > kMeasure) {
        Row("adding a row", size, ours, "ns", "ours at 1000", times[0] / static_cast<double>(kMeasure), 2);
    }
}

void MeasurePainting(CFilledGrid& grid, CFilledList& list, std::size_t rows) {
    const std::string size = std::to_string(rows) + " rows";
    grid.Paint();
    list.Paint();
    const std::vector<double> painting =
        MedianTurns({{HandleMessages, [&] { grid.Paint(); }}, {HandleMessages, [&] { list.Paint(); }}}, 31);
    // Few rows cost less than the beginning and end of a paint, which no row changes.
    Row("full paint", size, painting[0], "ns", kListView, painting[1], rows >= 100 ? 0.5 : 0);

    if (rows >= 1000) {
        const std::vector<double> scrolling =
            MedianTurns({{[&] { PageUp(grid); }, [&] { grid.ScrollPage(true); }},
                         {[&] { PageUp(list); }, [&] { list.ScrollPage(true); }}},
                        31);
        Row("scrolling by a page", size, scrolling[0], "ns", kListView, scrolling[1], 0);
    }

    const auto sort = [&grid](bool sorted) {
        grid.Sort(sorted);
        HandleMessages();
    };
    const std::vector<double> sorting = MedianTurns(
        {{[&] { sort(true); }, [&] { grid.Paint(); }}, {[&] { sort(false); }, [&] { grid.Paint(); }}}, 11);
    Row("full paint, sorted", size, sorting[0], "ns", "ours unsorted", sorting[1], 0);
}

void MeasureRows(CFrame& frame) {
    CFilledGrid grid(frame);
    CFilledList list(frame);
    for (std::size_t rows = 10; rows <= kMostRows; rows *= 10) {
        MeasureAdding(grid, list, rows);
        MeasurePainting(grid, list, rows);
    }
    MeasureMemory(grid, 10000);
}

}  // namespace

int main() {
    CFrame frame;
    MeasureRows(frame);
    MeasureInput(frame);
    return 0;
}
