#include "tests/windows/propgrid/MirroredGrid.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>

namespace tests {
namespace {

// A text as a literal of C++, all in ASCII.
std::string Quoted(const std::wstring& text) {
    std::string quoted = "L\"";
    for (const wchar_t character : text) {
        if (character >= L' ' && character < 0x7F) {
            quoted += static_cast<char>(character);
        } else {
            char escape[10];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(character));
            quoted += escape;
        }
    }
    return quoted + '"';
}

std::string Number(UINT id) {
    return id == kNoId ? "none" : std::to_string(id);
}

std::string Hex(COLORREF color) {
    char text[20];
    std::snprintf(text, sizeof text, "0x%06lX", color);
    return text;
}

std::string Called(const std::string& name, std::initializer_list<std::string> arguments) {
    std::string call = name + '(';
    const char* separator = "";
    for (const std::string& argument : arguments) {
        call += separator + argument;
        separator = ", ";
    }
    return call + ')';
}

std::string Flag(bool value) {
    return value ? "true" : "false";
}

std::string ValueOf(const ModelItem& item, const ModelValue& value) {
    switch (item.kind) {
        case IT_INTEGER:
        case IT_COMBO:
            return std::to_string(value.integer);
        case IT_DOUBLE:
        case IT_CUSTOM:
            return std::to_string(value.number);
        case IT_BOOLEAN:
            return Flag(value.flag);
        case IT_DATE:
        case IT_DATETIME:
            return std::to_string(value.date.m_dt) + " status " + std::to_string(value.date.GetStatus());
        case IT_COLOR:
            return Hex(value.color);
        case IT_FONT:
            return Quoted(value.font.lfFaceName) + " " + std::to_string(value.font.lfHeight);
        default:
            return Quoted(value.text);
    }
}

std::string Described(const ModelItem& item) {
    std::string text = "kind " + std::to_string(item.kind) + " " + Quoted(item.name) + " = " +
                       ValueOf(item, item.value) + (item.editable ? "" : " not editable") +
                       (item.undefined ? " undefined" : "");
    if (!item.format.empty()) {
        text += " format " + Quoted(item.format);
    }
    for (const std::wstring& choice : item.choices) {
        text += " choice " + Quoted(choice);
    }
    return item.kind == IT_CUSTOM ? text + " edit mode " + std::to_string(item.GetEditMode()) : text;
}

}  // namespace

BEGIN_MESSAGE_MAP(CMirrorParent, CWnd)
    ON_MESSAGE(WM_GETFONT, &CMirrorParent::OnGetFont)
END_MESSAGE_MAP()

CMirrorParent::CMirrorParent() {
    CreateEx(0, AfxRegisterWndClass(0), L"parent of mirrored grids", WS_POPUP | WS_VISIBLE,
             CRect(20, 20, 820, 620), nullptr, 0);
}

void CMirrorParent::SetAnsweredFont(const LOGFONTW* font) {
    m_font.DeleteObject();
    if (font != nullptr) {
        m_font.CreateFontIndirect(font);
    }
}

// Without an answer it is Tahoma with 8.5 points.
LOGFONTW CMirrorParent::GetGridFont() const {
    LOGFONTW description = {};
    if (m_font.GetSafeHandle() != nullptr) {
        CFont::FromHandle(m_font)->GetLogFont(&description);
        return description;
    }
    CFont standard;
    standard.CreatePointFont(85, L"Tahoma");
    standard.GetLogFont(&description);
    return description;
}

LRESULT CMirrorParent::OnGetFont(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(m_font.GetSafeHandle());
}

CMirroredGrid::CMirroredGrid(CMirrorParent& parent, CSize size) : m_model(size, parent.GetGridFont()) {
    const BOOL created =
        m_grid.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect({}, size), &parent, 100);
    EXPECT_TRUE(created);
    Note(Called("Create",
                {std::to_string(size.cx), std::to_string(size.cy), Quoted(m_model.normalFont.lfFaceName),
                 std::to_string(m_model.normalFont.lfHeight)}));
    EXPECT_EQ(m_grid.GetRowHeight(), m_model.rowHeight);
    m_grid.SetFocus();
}

void CMirroredGrid::SetMode(UINT mode) {
    Note(Called("SetDisplayMode", {std::to_string(mode)}));
    m_grid.SetDisplayMode(mode);
    m_model.mode = mode;
    m_model.Relayout();
}

void CMirroredGrid::SetGutter(int x) {
    Note(Called("SetGutterWidth", {std::to_string(x)}));
    m_grid.SetGutterWidth(x);
    m_model.gutter = x;
}

void CMirroredGrid::SetDisplayFlags(bool shade, bool lines, bool divider, bool focusNonEditable) {
    Note(Called("display flags", {Flag(shade), Flag(lines), Flag(divider), Flag(focusNonEditable)}));
    m_grid.SetShadeHeaders(shade);
    m_grid.SetDrawLines(lines);
    m_grid.SetDrawDivider(divider);
    m_grid.SetFocusNonEditable(focusNonEditable);
    m_model.shade = shade;
    m_model.lines = lines;
    m_model.divider = divider;
}

void CMirroredGrid::SetBoldFlags(bool modified, bool editable) {
    Note(Called("bold flags", {Flag(modified), Flag(editable)}));
    m_grid.SetBoldModified(modified);
    m_grid.SetBoldEditable(editable);
    m_model.boldModified = modified;
    m_model.boldEditable = editable;
}

void CMirroredGrid::SetColors(const ModelColors& colors) {
    Note(Called("colours",
                {Hex(colors.text), Hex(colors.title), Hex(colors.back), Hex(colors.shade), Hex(colors.focus),
                 Hex(colors.focusText), Hex(colors.editable), Hex(colors.nonEditable)}));
    m_grid.SetTextColor(colors.text);
    m_grid.SetTitleColor(colors.title);
    m_grid.SetBackColor(colors.back);
    m_grid.SetShadeColor(colors.shade);
    m_grid.SetFocusColor(colors.focus);
    m_grid.SetFocusTextColor(colors.focusText);
    m_grid.SetEditableColor(colors.editable);
    m_grid.SetNonEditableColor(colors.nonEditable);
    m_model.colors = colors;
}

void CMirroredGrid::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    Note(Called("SetBooleanTexts", {Quoted(trueText), Quoted(falseText)}));
    m_grid.SetBooleanTexts(trueText, falseText);
    m_model.trueText = trueText;
    m_model.falseText = falseText;
}

void CMirroredGrid::SetUndefinedText(const std::wstring& text) {
    Note(Called("SetUndefinedText", {Quoted(text)}));
    m_grid.SetUndefinedText(text);
    m_model.undefinedText = text;
}

void CMirroredGrid::SetEmptyListText(const std::wstring& text) {
    Note(Called("SetEmptyListText", {Quoted(text)}));
    m_grid.SetEmptyListText(text);
    m_model.emptyListText = text;
}

UINT CMirroredGrid::AddSection(const std::wstring& name, bool collapsed, UINT before) {
    Note(Called("AddSection", {Quoted(name), Flag(collapsed), Number(before)}));
    const UINT id = m_model.nextSection++;
    EXPECT_EQ(m_grid.AddSection(name, collapsed, before), id);
    std::vector<ModelSection>& sections = m_model.sections;
    auto position = sections.begin();
    while (position != sections.end() && position->id != before) {
        ++position;
    }
    sections.insert(position, {id, name, collapsed, {}});
    m_model.Relayout();
    return id;
}

UINT CMirroredGrid::AddItem(UINT section, const ModelItem& description) {
    Note(Called("AddItem", {Number(section), Described(description)}));
    const UINT id = AddToModel(section, description);
    EXPECT_EQ(AddToGrid(section, description), id);
    return id;
}

UINT CMirroredGrid::AddFigure(UINT section, const std::wstring& name, bool editable, int editMode) {
    ModelItem item;
    item.kind = IT_CUSTOM;
    item.name = name;
    item.editable = editable;
    item.figure = &m_figures.emplace_back(editMode);
    return AddItem(section, item);
}

UINT CMirroredGrid::AddDistance(UINT section, const std::wstring& name, bool editable, double length) {
    ModelItem item;
    item.kind = IT_CUSTOM;
    item.name = name;
    item.editable = editable;
    item.value.number = length;
    item.distance = &m_distances.emplace_back(nullptr, length);
    item.distanceReference = length;
    return AddItem(section, item);
}

UINT CMirroredGrid::AddToModel(UINT section, const ModelItem& item) {
    ModelSection* const target = m_model.FindSection(section);
    if (target == nullptr) {
        return kNoId;
    }
    for (const ModelItem& other : target->items) {
        if (other.name == item.name) {
            return kNoId;
        }
    }
    ModelItem added = item;
    added.id = m_model.nextItem++;
    added.savedValue = item.value;
    added.savedUndefined = item.undefined;
    target->items.push_back(added);
    m_model.Relayout();
    return added.id;
}

UINT CMirroredGrid::AddToGrid(UINT section, const ModelItem& item) {
    const ModelValue& value = item.value;
    const bool editable = item.editable;
    const bool undefined = item.undefined;
    switch (item.kind) {
        case IT_STRING:
            return m_grid.AddStringItem(section, item.name, value.text, editable, undefined);
        case IT_TEXT:
            return m_grid.AddTextItem(section, item.name, value.text, editable, undefined);
        case IT_INTEGER:
            return m_grid.AddIntegerItem(section, item.name, value.integer, item.format, editable, undefined);
        case IT_DOUBLE:
            return m_grid.AddDoubleItem(section, item.name, value.number, item.format, editable, undefined);
        case IT_COMBO:
            return m_grid.AddComboItem(section, item.name, item.choices, value.integer, editable, undefined);
        case IT_BOOLEAN:
            return m_grid.AddBooleanItem(section, item.name, value.flag, editable, undefined);
        case IT_DATE:
            return m_grid.AddDateItem(section, item.name, value.date, item.format, editable, undefined);
        case IT_DATETIME:
            return m_grid.AddDateTimeItem(section, item.name, value.date, item.format, editable, undefined);
        case IT_FILE:
            return m_grid.AddFileItem(section, item.name, value.text, L"All|*.*||", editable, undefined);
        case IT_FOLDER:
            return m_grid.AddFolderItem(section, item.name, value.text, L"Folder", editable, undefined);
        case IT_COLOR:
            return m_grid.AddColorItem(section, item.name, value.color, editable, undefined);
        case IT_FONT:
            return m_grid.AddFontItem(section, item.name, value.font, editable, undefined);
        case IT_CUSTOM:
            break;
    }
    ICustomItem* const custom =
        item.figure != nullptr ? static_cast<ICustomItem*>(item.figure) : item.distance;
    return m_grid.AddCustomItem(section, item.name, custom, editable);
}

void CMirroredGrid::SetValue(UINT id, const ModelValue& value) {
    ModelItem* const item = m_model.FindItem(id);
    ASSERT_NE(item, nullptr);
    if (item->figure != nullptr) {
        return;
    }
    Note(Called("SetItemValue", {Number(id), ValueOf(*item, value)}));
    EXPECT_TRUE(SetInGrid(*item, value));
    item->value = value;
    item->undefined = false;
}

bool CMirroredGrid::SetInGrid(const ModelItem& item, const ModelValue& value) {
    switch (item.kind) {
        case IT_INTEGER:
        case IT_COMBO:
            return m_grid.SetItemValue(item.id, value.integer);
        case IT_DOUBLE:
            return m_grid.SetItemValue(item.id, value.number);
        case IT_BOOLEAN:
            return m_grid.SetItemValue(item.id, value.flag);
        case IT_DATE:
        case IT_DATETIME:
            return m_grid.SetItemValue(item.id, value.date);
        case IT_COLOR:
            return m_grid.SetItemValue(item.id, value.color);
        case IT_FONT:
            return m_grid.SetItemValue(item.id, value.font);
        case IT_CUSTOM:
            item.distance->SetStringValue(std::to_wstring(value.number));
            return item.distance->GetDistance() == value.number;
        default:
            return m_grid.SetItemValue(item.id, value.text);
    }
}

void CMirroredGrid::SetUndefined(UINT id, bool undefined) {
    ModelItem* const item = m_model.FindItem(id);
    ASSERT_NE(item, nullptr);
    if (item->kind == IT_CUSTOM) {
        return;
    }
    Note(Called("SetItemUndefined", {Number(id), Flag(undefined)}));
    EXPECT_TRUE(m_grid.SetItemUndefined(id, undefined));
    item->undefined = undefined;
}

void CMirroredGrid::SetEditable(UINT id, bool editable) {
    Note(Called("SetItemEditable", {Number(id), Flag(editable)}));
    EXPECT_TRUE(m_grid.SetItemEditable(id, editable));
    m_model.FindItem(id)->editable = editable;
}

void CMirroredGrid::AcceptValues() {
    Note("AcceptValues()");
    m_grid.AcceptValues();
    for (ModelSection& section : m_model.sections) {
        for (ModelItem& item : section.items) {
            item.savedValue = item.value;
            item.savedUndefined = item.undefined;
        }
    }
}

void CMirroredGrid::ResetContents() {
    Note("ResetContents()");
    m_grid.ResetContents();
    m_model.sections.clear();
    m_model.nextSection = 0;
    m_model.nextItem = 0;
    m_model.Relayout();
}

void CMirroredGrid::SetCollapsed(UINT section, bool collapsed) {
    Note(Called("SetSectionCollapsed", {Number(section), Flag(collapsed)}));
    EXPECT_TRUE(m_grid.SetSectionCollapsed(section, collapsed));
    m_model.FindSection(section)->collapsed = collapsed;
    m_model.Relayout();
}

void CMirroredGrid::FocusItem(UINT item) {
    Note(Called("SetFocusedItem", {Number(item)}));
    EXPECT_TRUE(m_grid.SetFocusedItem(item));
    m_model.focusedItem = item;
    m_model.focusedSection = kNoId;
}

void CMirroredGrid::FocusSection(UINT section) {
    Note(Called("SetFocusedSection", {Number(section)}));
    EXPECT_TRUE(m_grid.SetFocusedSection(section));
    m_model.focusedSection = section;
    m_model.focusedItem = kNoId;
}

void CMirroredGrid::Resize(CSize size) {
    Note(Called("Resize", {std::to_string(size.cx), std::to_string(size.cy)}));
    m_grid.MoveWindow(0, 0, size.cx, size.cy);
    m_model.Resize(size);
}

void CMirroredGrid::ScrollTo(int position) {
    Note(Called("ScrollTo", {std::to_string(position)}));
    m_grid.SendMessage(
        WM_NULL);  // rows that were just added may need the bar, which a message's arrival makes
    const CWnd* const bar = m_grid.GetDlgItem(1000);
    const auto handle = reinterpret_cast<LPARAM>(bar != nullptr ? bar->m_hWnd : nullptr);
    m_grid.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position), handle);
    m_model.ScrollTo(position);
}

void CMirroredGrid::Press(CPoint point) {
    Note(Called("Press", {std::to_string(point.x), std::to_string(point.y)}));
    m_grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    m_model.pressed = true;
}

void CMirroredGrid::Release() {
    m_grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-1, -1));
    m_model.pressed = false;
}

}  // namespace tests
