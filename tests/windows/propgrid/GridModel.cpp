#include "tests/windows/propgrid/GridModel.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tests {
namespace {

// The height of a row: a text in the normal font and four pixels.
int MeasureRow(const LOGFONTW& description) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CFont font;
    font.CreateFontIndirect(&description);
    const HGDIOBJ previous = ::SelectObject(dc, font.GetSafeHandle());
    const int height = dc.GetTextExtent(L"Gg", 2).cy;
    ::SelectObject(dc, previous);
    return height + 4;
}

std::wstring Formatted(const std::wstring& format, const wchar_t* standard, auto number) {
    CString text;
    text.Format(format.empty() ? standard : format.c_str(), number);
    return text.GetString();
}

std::wstring DateText(const ModelItem& item, DWORD standard) {
    const COleDateTime& date = item.value.date;
    return (item.format.empty() ? date.Format(standard) : date.Format(item.format.c_str())).GetString();
}

std::wstring WithPilcrows(std::wstring text) {
    for (std::size_t at = text.find(L"\r\n"); at != std::wstring::npos; at = text.find(L"\r\n", at)) {
        text.replace(at, 2, L"\u00B6");
    }
    return text;
}

std::wstring ColorText(COLORREF color) {
    return std::to_wstring(GetRValue(color)) + L"; " + std::to_wstring(GetGValue(color)) + L"; " +
           std::to_wstring(GetBValue(color));
}

std::wstring FontText(const LOGFONTW& font) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const int points = -::MulDiv(font.lfHeight, 72, dc.GetDeviceCaps(LOGPIXELSY));
    return std::wstring(font.lfFaceName) + L"; " + std::to_wstring(points) + L"pt";
}

}  // namespace

void CFigureItem::DrawItem(CDC& dc, CRect rect, bool focused) {
    // With the grid's own pen, brush, font, text colour and background mode.
    dc.Rectangle(rect.left + 3, rect.top + 2, rect.left + 12, rect.bottom - 2);
    CRect text(rect.left + 14, rect.top, rect.right, rect.bottom);
    const std::wstring name = focused ? L"focused figure" : L"figure";
    dc.DrawText(name.c_str(), static_cast<int>(name.size()), text, DT_SINGLELINE | DT_VCENTER);
    // One pixel beyond the cell's right edge, over what was drawn there before.
    dc.FillSolidRect(rect.right, rect.top + 4, 1, 2, RGB(255, 0, 255));
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(RGB(255, 0, 0));
    dc.SetTextColor(RGB(255, 0, 0));
    for (const int object : {SYSTEM_FIXED_FONT, NULL_PEN, NULL_BRUSH}) {
        ::SelectObject(dc, ::GetStockObject(object));
    }
}

int ModelItem::GetEditMode() const {
    switch (kind) {
        case IT_STRING:
        case IT_INTEGER:
        case IT_DOUBLE:
            return EM_INPLACE;
        case IT_COMBO:
        case IT_BOOLEAN:
        case IT_DATE:
            return EM_DROPDOWN;
        case IT_CUSTOM:
            return figure != nullptr ? figure->GetEditMode() : EM_INPLACE_BUTTON;
        default:
            return EM_MODAL;
    }
}

bool ModelItem::IsModified() const {
    switch (kind) {
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            return value.text != savedValue.text;
        case IT_INTEGER:
        case IT_COMBO:
            return value.integer != savedValue.integer;
        case IT_DOUBLE:
            return value.number != savedValue.number;
        case IT_BOOLEAN:
            return value.flag != savedValue.flag;
        case IT_DATE:
        case IT_DATETIME:
            return value.date.m_dt != savedValue.date.m_dt ||
                   value.date.GetStatus() != savedValue.date.GetStatus();
        case IT_COLOR:
            return value.color != savedValue.color;
        case IT_FONT:
            return std::memcmp(&value.font, &savedValue.font, sizeof value.font) != 0;
        default:
            return false;
    }
}

GridModel::GridModel(CSize clientSize, const LOGFONTW& font)
    : client(clientSize),
      normalFont(font),
      boldFont(font),
      rowHeight(MeasureRow(font)),
      gutter(clientSize.cx / 2) {
    boldFont.lfWeight = 700;
}

int GridModel::GetContentHeight() const {
    int rows = 0;
    for (const ModelSection& section : sections) {
        rows += mode == 0 ? 1 : 0;
        rows += mode == 0 && section.collapsed ? 0 : static_cast<int>(section.items.size());
    }
    return rows * rowHeight;
}

int GridModel::GetRowWidth() const {
    return client.cx - (barShown ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
}

void GridModel::Relayout() {
    const int position = GetScrollPosition();
    barShown = GetContentHeight() >= client.cy;
    if (barShown) {
        hasBar = true;
        barPosition = std::min(position, GetLastPosition());
    }
}

void GridModel::Resize(CSize size) {
    client = size;
    if (hasBar) {
        Relayout();
    }
}

void GridModel::ScrollTo(int position) {
    const bool atEnd = barPosition == GetContentHeight() - client.cy;
    const bool noMove = position == barPosition || (position > barPosition && atEnd);
    if (barShown && !noMove) {
        barPosition = std::min(position, GetLastPosition());
    }
}

ModelSection* GridModel::FindSection(UINT id) {
    for (ModelSection& section : sections) {
        if (section.id == id) {
            return &section;
        }
    }
    return nullptr;
}

const ModelItem* GridModel::FindItem(UINT id) const {
    for (const ModelSection& section : sections) {
        for (const ModelItem& item : section.items) {
            if (item.id == id) {
                return &item;
            }
        }
    }
    return nullptr;
}

ModelItem* GridModel::FindItem(UINT id) {
    return const_cast<ModelItem*>(std::as_const(*this).FindItem(id));
}

std::wstring GridModel::GetValueText(const ModelItem& item) const {
    if (item.undefined) {
        return undefinedText;
    }
    const ModelValue& value = item.value;
    const bool hasChoice = value.integer >= 0 && value.integer < static_cast<int>(item.choices.size());
    switch (item.kind) {
        case IT_TEXT:
            return WithPilcrows(value.text);
        case IT_INTEGER:
            return Formatted(item.format, L"%d", value.integer);
        case IT_DOUBLE:
            return Formatted(item.format, L"%g", value.number);
        case IT_COMBO:
            return hasChoice ? item.choices[static_cast<std::size_t>(value.integer)] : std::wstring();
        case IT_BOOLEAN:
            return value.flag ? trueText : falseText;
        case IT_DATE:
            return DateText(item, VAR_DATEVALUEONLY);
        case IT_DATETIME:
            return DateText(item, 0);
        case IT_COLOR:
            return ColorText(value.color);
        case IT_FONT:
            return FontText(value.font);
        default:
            return value.text;
    }
}

}  // namespace tests
