#include "devhost/window/StatusLine.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <numbers>

#include "devhost/Libraries.h"
#include "devhost/UserError.h"
#include "devhost/window/Commands.h"
#include "handles/GdiScopes.h"
#include "units/LinearUnits.h"

namespace devhost {

namespace handles = tavrin::handles;

namespace {

enum EPart { PART_TEXT, PART_POINT, PART_UNITS, PART_PRECISION };

// Pixels.
constexpr int kPointWidth = 230;
constexpr int kUnitsWidth = 120;
constexpr int kPrecisionWidth = 120;
constexpr int kTextGap = 4;
constexpr int kArrowWidth = 8;
constexpr int kGripWidth = 18;  // what the grip in the corner takes, and as much before the other part

struct UnitsName {
    int lunits;
    const wchar_t* name;
};
constexpr UnitsName kUnits[] = {
    {units::LU_SCIENTIFIC, L"Scientific"},   {units::LU_DECIMAL, L"Decimal"},
    {units::LU_ENGINEERING, L"Engineering"}, {units::LU_ARCHITECTURAL, L"Architectural"},
    {units::LU_FRACTIONAL, L"Fractional"},
};

std::wstring NameOf(int units) {
    for (const UnitsName& known : kUnits) {
        if (known.lunits == units) {
            return known.name;
        }
    }
    return L"Decimal";  // what other values work like
}

// The smallest step that a precision shows: 0.01, or 1/4.
std::wstring StepOf(int units, int precision) {
    if (units == units::LU_ARCHITECTURAL || units == units::LU_FRACTIONAL) {
        return precision == 0 ? L"1" : L"1/" + std::to_wstring(1 << precision);
    }
    return precision == 0 ? L"1" : L"0." + std::wstring(static_cast<std::size_t>(precision) - 1, L'0') + L'1';
}

}  // namespace

CStatusLine::CStatusLine(HWND parent)
    : m_window(CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
                               parent, reinterpret_cast<HMENU>(INT_PTR(IDC_STATUS)),
                               GetModuleHandleW(nullptr), nullptr)) {
    if (m_window == nullptr) {
        throw CUserError(L"the main window cannot be opened");
    }
    TakeResolution();
    ShowFormat();
}

void CStatusLine::TakeResolution() {
    SendMessageW(m_window, SB_SETMINHEIGHT, static_cast<WPARAM>(m_scale(22)), 0);
}

int CStatusLine::Height() const {
    RECT rect;
    GetWindowRect(m_window, &rect);
    return rect.bottom - rect.top;
}

void CStatusLine::Layout() {
    SendMessageW(m_window, WM_SIZE, 0, 0);
    RECT client;
    GetClientRect(m_window, &client);
    const int precision = client.right - m_scale(kPrecisionWidth);
    const int units = precision - m_scale(kUnitsWidth);
    const int point = units - m_scale(kPointWidth);
    const int ends[] = {std::max(point, 1), std::max(units, 2), std::max(precision, 3), -1};
    SendMessageW(m_window, SB_SETPARTS, std::size(ends), reinterpret_cast<LPARAM>(ends));
    ShowPoint(m_point);
    ShowFormat();
}

void CStatusLine::ShowText(const std::wstring& text) {
    SendMessageW(m_window, SB_SETTEXTW, PART_TEXT, reinterpret_cast<LPARAM>(text.c_str()));
}

void CStatusLine::ShowPoint(Point point) {
    m_point = point;
    SendMessageW(m_window, SB_SETTEXTW, PART_POINT, reinterpret_cast<LPARAM>(TextOf(point).c_str()));
}

std::wstring CStatusLine::TextOf(Point point) const {
    return units::FormatLinear(point.x, m_units, m_precision).value_or(L"") + L", " +
           units::FormatLinear(point.y, m_units, m_precision).value_or(L"");
}

std::wstring CStatusLine::TextOf(double length, double angle) const {
    constexpr int kAngleDigits = 1;
    const double degrees = angle * 180 / std::numbers::pi;
    return units::FormatLinear(length, m_units, m_precision).value_or(L"") + L" < " +
           units::FormatLinear(degrees < 0 ? degrees + 360 : degrees, units::LU_DECIMAL, kAngleDigits)
               .value_or(L"") +
           L"\u00B0";
}

void CStatusLine::SetFormat(int lunits, int luprec) {
    m_units = lunits;
    m_precision = std::clamp(luprec, 0, units::kMaxLinearPrecision);
    ShowPoint(m_point);
    ShowFormat();
}

void CStatusLine::ShowFormat() {
    for (const EPart part : {PART_UNITS, PART_PRECISION}) {
        SendMessageW(m_window, SB_SETTEXTW, static_cast<WPARAM>(part | SBT_OWNERDRAW), 0);
    }
}

// A text and, at the right, a small arrow as in a combo box.
void CStatusLine::DrawPart(const DRAWITEMSTRUCT& item) const {
    const std::wstring text = item.itemID == PART_UNITS ? NameOf(m_units) : StepOf(m_units, m_precision);
    const int arrow = m_scale(kArrowWidth);
    RECT rectangle = item.rcItem;
    rectangle.right -= m_scale(kGripWidth);
    const int right = rectangle.right;
    const int middle = (rectangle.top + rectangle.bottom) / 2 - arrow / 4;
    rectangle.left += m_scale(kTextGap);
    rectangle.right -= arrow + m_scale(kTextGap);
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &rectangle,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    const handles::CSelectedObject brush(item.hDC, GetSysColorBrush(COLOR_BTNTEXT));
    const handles::CSelectedObject pen(item.hDC, GetStockObject(NULL_PEN));
    const POINT corners[] = {
        {right - arrow, middle}, {right, middle}, {right - arrow / 2, middle + arrow / 2}};
    Polygon(item.hDC, corners, static_cast<int>(std::size(corners)));
}

void CStatusLine::OnNotify(const NMHDR& header) const {
    if (header.hwndFrom != m_window || header.code != static_cast<UINT>(NM_CLICK)) {
        return;
    }
    const auto part = static_cast<int>(reinterpret_cast<const NMMOUSE&>(header).dwItemSpec);
    if (part == PART_UNITS || part == PART_PRECISION) {
        OpenMenu(part);
    }
}

void CStatusLine::OpenUnitsMenu() const {
    OpenMenu(PART_UNITS);
}

void CStatusLine::OpenPrecisionMenu() const {
    OpenMenu(PART_PRECISION);
}

void CStatusLine::OpenMenu(int part) const {
    const HMENU menu = CreatePopupMenu();
    UINT chosen = 0;
    if (part == PART_UNITS) {
        for (const UnitsName& units : kUnits) {
            const std::wstring example = units::FormatLinear(15.5, units.lunits, m_precision).value_or(L"");
            AppendMenuW(menu, MF_STRING, static_cast<UINT>(IDM_UNITS + units.lunits),
                        (L'&' + (units.name + (L'\t' + example))).c_str());
        }
        chosen = static_cast<UINT>(IDM_UNITS + m_units);
    } else {
        for (int precision = 0; precision <= units::kMaxLinearPrecision; ++precision) {
            // The mnemonic is the number of decimals, or the power of two.
            const std::wstring text = StepOf(m_units, precision) + L"\t&" + std::to_wstring(precision);
            AppendMenuW(menu, MF_STRING, static_cast<UINT>(IDM_PRECISION + precision), text.c_str());
        }
        chosen = static_cast<UINT>(IDM_PRECISION + m_precision);
    }
    CheckMenuRadioItem(menu, IDM_UNITS, IDM_PRECISION + units::kMaxLinearPrecision, chosen, MF_BYCOMMAND);
    RECT rectangle;
    SendMessageW(m_window, SB_GETRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&rectangle));
    MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&rectangle), 2);
    TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_BOTTOMALIGN, rectangle.left, rectangle.top, 0,
                   GetParent(m_window), nullptr);
    DestroyMenu(menu);
}

}  // namespace devhost
