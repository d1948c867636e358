#include "propgrid/editors/GridEditors.h"

#include <utility>

#include "propgrid/editors/PropertyGridCombo.h"
#include "propgrid/editors/PropertyGridInPlaceEdit.h"
#include "propgrid/editors/PropertyGridMonthCalCtrl.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

namespace {

constexpr UINT kTextEditId = 1000;

// The area that a pop-up is created on, under a cell, before it takes the height that it needs.
CRect AreaUnder(const Rect& cell) {
    constexpr int kPopUpHeight = 100;
    return {cell.left, cell.bottom, cell.right, cell.bottom + kPopUpHeight};
}

// Fills the list and selects the item's index.
void AddChoices(CPropertyGridCombo& list, const GridItem& item, const GridTexts& texts) {
    int selection = 0;
    if (item.kind == IT_BOOLEAN) {
        list.AddString(texts.trueText);
        list.AddString(texts.falseText);
        selection = std::get<bool>(item.value) ? 0 : 1;
    } else {
        for (const std::wstring& choice : item.options) {
            list.AddString(choice);
        }
        selection = std::get<int>(item.value);
    }
    if (!item.undefined) {
        list.SetCurSel(selection);
    }
}

}  // namespace

void EditorDeleter::operator()(CWnd* editor) const {
    if (editor->GetSafeHwnd() != nullptr) {
        editor->DestroyWindow();
    }
    delete editor;
}

void CGridEditors::OpenTextEdit(const Rect& rect, const std::wstring& name, const std::wstring& text,
                                wchar_t typed) {
    Close();
    auto edit =
        std::make_unique<CPropertyGridInPlaceEdit>(&m_grid, ToCRect(rect), WS_CHILD, kTextEditId, text, name);
    if (edit->GetSafeHwnd() == nullptr) {
        return;
    }
    const GridColors& colors = m_model.settings.colors;
    edit->SetColors(colors.back, colors.text);
    edit->SetFont(&m_fonts.normal);
    edit->ShowWindow(SW_SHOW);
    if (typed != 0) {
        edit->SetSel(0, -1);
        edit->SendMessage(WM_CHAR, typed, 1);
    }
    Own(edit.release());
}

void CGridEditors::OpenList(const GridItem& item, const Rect& cell) {
    Close();
    auto list = std::make_unique<CPropertyGridCombo>();
    if (!list->Create(WS_CHILD, AreaUnder(cell), &m_grid, 0)) {
        return;
    }
    const GridColors& colors = m_model.settings.colors;
    list->SetColors(colors.back, colors.text, colors.focus, colors.focusText);
    list->SetFont(&m_fonts.normal);
    list->SetAccessibleName(item.name);
    AddChoices(*list, item, m_model.settings.texts);
    Own(list.release());
    m_editor->ShowWindow(SW_SHOW);
}

void CGridEditors::OpenCalendar(const DateValue& date, const Rect& cell) {
    Close();
    auto calendar = std::make_unique<CPropertyGridMonthCalCtrl>();
    CRect area = AreaUnder(cell);
    m_grid.ClientToScreen(&area);
    if (!calendar->CWnd::CreateEx(0, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER, area, m_grid.GetParent(),
                                  0)) {
        return;
    }
    // A date that is none leaves today selected.
    calendar->SetCurSel(ToOleDate(date));
    calendar->SetOwner(&m_grid);
    calendar->SizeMinReq(TRUE);
    CRect window;
    calendar->GetWindowRect(&window);
    Own(calendar.release());
    m_editor->SetWindowPos(nullptr, area.right - window.Width(), area.top, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

void CGridEditors::Own(CWnd* editor) {
    m_editor.reset(editor);
    m_generation = m_model.GetGeneration();
}

bool CGridEditors::IsTextUntouched() const {
    const auto* const edit = dynamic_cast<const CPropertyGridInPlaceEdit*>(m_editor.get());
    return edit != nullptr && edit->IsUntouched();
}

std::optional<DateValue> CGridEditors::GetCalendarDate() const {
    const auto* const calendar = dynamic_cast<const CMonthCalCtrl*>(m_editor.get());
    COleDateTime date;
    const bool hasDate = calendar != nullptr && calendar->GetCurSel(date);
    return hasDate ? std::optional(ToDateValue(date)) : std::nullopt;
}

}  // namespace tavrin::propgrid
