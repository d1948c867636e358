// The property grid beside a list view of the same size with the same two columns of text: filling, painting,
// scrolling; what input costs by the number of rows, and what a row takes of memory.
#include <afxwin.h>
#include <commctrl.h>

#include <cstdio>
#include <string>

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

std::wstring NameOf(std::size_t row) {
    return L"Parameter " + std::to_wstring(row);
}

double ValueOf(std::size_t row) {
    return 0.5 * static_cast<double>(row);
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
    explicit CFilledGrid(CWnd& frame) {
        const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
        m_grid.Create(name, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &frame, 1);
        m_grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
    }

    // To one section without rows.
    void Clear() {
        m_grid.ResetContents();
        m_section = m_grid.AddSection(L"Item Data");
    }
    void AddRows(std::size_t rows) {
        for (std::size_t row = 0; row < rows; ++row) {
            m_grid.AddDoubleItem(m_section, NameOf(row), ValueOf(row));
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

    void Clear() { ::SendMessageW(m_list, LVM_DELETEALLITEMS, 0, 0); }
    void SetRedraw(bool redraw) { ::SendMessageW(m_list, WM_SETREDRAW, redraw ? TRUE : FALSE, 0); }
    void AddRows(std::size_t rows) {
        for (std::size_t row = 0; row < rows; ++row) {
            std::wstring name = NameOf(row);
            CString value;
            value.Format(L"%g", ValueOf(row));
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = static_cast<int>(row);
            item.pszText = name.data();
            ::SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            item.iSubItem = 1;
            item.pszText = const_cast<wchar_t*>(value.GetString());  // the list only reads it
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
        taken -= sizeof(wchar_t) * NameOf(row).size();
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
void MeasureInput(CFilledGrid& grid) {
    constexpr const char* names[] = {"arrow key", "click", "hover"};
    std::vector<double> few;
    for (const std::size_t rows : {100U, 100000U}) {
        grid.Clear();
        grid.AddRows(rows);
        grid.Paint();
        const auto prepare = [&] {
            grid.FocusRow(rows - 3);
            grid.ScrollToEnd();
            HandleMessages();
        };
        const std::vector<double> times = MedianTurns({{prepare, [&] { grid.PressDown(); }},
                                                       {prepare, [&] { grid.ClickName(); }},
                                                       {prepare, [&] { grid.Hover(); }}},
                                                      31);
        for (std::size_t index = 0; index < times.size(); ++index) {
            const double beside = few.empty() ? times[index] : few[index];
            Row(names[index], std::to_string(rows) + " rows", times[index], "ns", "ours at 100", beside, 2);
        }
        few = times;
    }
    grid.Clear();
}

// Times beside the list view for each number of rows.
void MeasureRows(CFilledGrid& grid, CFilledList& list) {
    double addingFew = 0;
    double paintingFew = 0;
    for (const std::size_t rows : {10U, 100U, 1000U, 10000U, 100000U}) {
        const std::string size = std::to_string(rows) + " rows";
        const std::size_t rounds = rows > 10000 ? 3 : 11;
        const auto perRow = [rows](double time) { return time / static_cast<double>(rows); };

        list.SetRedraw(false);
        const std::vector<double> adding = MedianTurns({{[&] { grid.Clear(); }, [&] { grid.AddRows(rows); }},
                                                        {[&] { list.Clear(); }, [&] { list.AddRows(rows); }}},
                                                       rounds);
        list.SetRedraw(true);
        Row("adding a row", size, perRow(adding[0]), "ns", "limit", 1000, 1);
        Row("adding a row", size, perRow(adding[0]), "ns", kListView, perRow(adding[1]), 0.2);
        if (rows == 1000) {
            addingFew = perRow(adding[0]);
        } else if (rows > 1000) {
            Row("adding a row", size, perRow(adding[0]), "ns", "ours at 1000", addingFew, 1.5);
        }

        grid.Paint();
        list.Paint();
        const std::vector<double> painting = MedianTurns(
            {{HandleMessages, [&] { grid.Paint(); }}, {HandleMessages, [&] { list.Paint(); }}}, 31);
        // Few rows cost less than the beginning and end of a paint, which no row changes.
        const double paintingBar = rows >= 100 ? 0.5 : 0;
        Row("full paint", size, painting[0], "ns", kListView, painting[1], paintingBar);
        if (rows == 100) {
            paintingFew = painting[0];
        } else if (rows > 100) {
            Row("full paint", size, painting[0], "ns", "ours at 100", paintingFew, 0);
        }

        if (rows >= 1000) {
            const std::vector<double> scrolling =
                MedianTurns({{[&] { PageUp(grid); }, [&] { grid.ScrollPage(true); }},
                             {[&] { PageUp(list); }, [&] { list.ScrollPage(true); }}},
                            31);
            Row("scrolling by a page", size, scrolling[0], "ns", kListView, scrolling[1], 0);
        }

        grid.Sort(true);
        const std::vector<double> sorted = MedianTurns({{HandleMessages, [&] { grid.Paint(); }}}, 11);
        Row("full paint, sorted", size, sorted[0], "ns", "ours unsorted", painting[0], 0);
        grid.Sort(false);
    }
    grid.Clear();
    list.Clear();
}

}  // namespace

int main() {
    CFrame frame;
    CFilledGrid grid(frame);
    CFilledList list(frame);
    MeasureRows(grid, list);
    MeasureInput(grid);
    MeasureMemory(grid, 10000);
    return 0;
}
