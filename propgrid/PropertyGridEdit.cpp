// The property grid's editors: opening the one that suits the focused item, and taking what it gives back.
//
// At most one editor exists. A handler of a result takes it out of the grid first and destroys it last: the
// owner's ear, or a custom item's, lies between, and may lead to anything, another editor included.
#include <utility>

#include "propgrid/PropertyGrid.h"
#include "propgrid/PropertyGridCombo.h"
#include "propgrid/PropertyGridInPlaceEdit.h"
#include "propgrid/PropertyGridMonthCalCtrl.h"
#include "propgrid/TypedNumber.h"

namespace {

// Of a pop-up before it takes the height that it needs.
constexpr int popUpHeight = 100;

// The text that the in-place edit opens with: deliberately not in the item's display format.
std::wstring TextToEdit(const CGridItem& item) {
    CString text;
    switch (item.kind) {
        case IT_CUSTOM:
            return std::get<ICustomItem*>(item.value)->GetStringValue();
        case IT_STRING:
            return std::get<std::wstring>(item.value);
        case IT_INTEGER:
            if (!item.undefined) {
                text.Format(L"%d", std::get<int>(item.value));
            }
            break;
        case IT_DOUBLE:
            if (!item.undefined) {
                text.Format(L"%g", std::get<double>(item.value));
            }
            break;
        default:
            break;
    }
    return text.GetString();
}

bool IsEditedAsText(EItemType kind) {
    return kind == IT_STRING || kind == IT_INTEGER || kind == IT_DOUBLE || kind == IT_CUSTOM;
}

// Gives a String, an Integer or a Double what was typed. False when nothing was typed for a number. A text
// that was not touched stands for the value itself: a number keeps the digits that its text does not show.
bool StoreText(CGridItem& item, const std::wstring& text, bool isUntouched) {
    if (item.kind != IT_STRING && text.empty()) {
        return false;
    }
    if (!isUntouched && item.kind == IT_STRING) {
        item.value = text;
    } else if (!isUntouched && item.kind == IT_INTEGER) {
        item.value = ReadTypedInteger(text);
    } else if (!isUntouched) {
        item.value = ReadTypedReal(text);
    }
    item.undefined = false;
    return true;
}

void DestroyEditor(std::unique_ptr<CWnd> editor) {
    if (editor != nullptr && editor->GetSafeHwnd() != nullptr) {
        editor->DestroyWindow();
    }
}

}  // namespace

void CPropertyGrid::EndEditing() {
    if (IsEditing()) {
        SetFocus();
    }
    CloseEditor();
}

// Ends an open editor before something becomes of its row. Whoever hears of the text may do anything to the
// grid meanwhile. False when that took the grid's window away.
bool CPropertyGrid::LeaveEditor() {
    if (IsEditing()) {
        EndEditing();
    }
    return GetSafeHwnd() != nullptr;
}

// The same before what the user does with the mouse, for which the grid has to have the focus.
bool CPropertyGrid::TakeFocus() {
    SetFocus();
    CloseEditor();
    return GetSafeHwnd() != nullptr;
}

// The grid lets go of the editor before its window is destroyed, which may bring a message about its end.
void CPropertyGrid::CloseEditor() {
    DestroyEditor(std::move(m_editor));
}

// `point` is where the mouse was released.
void CPropertyGrid::OpenEditor(CPoint point) {
    CloseEditor();
    const CGridItem* const item = FindFocusedItem();
    if (item == nullptr || !item->editable) {
        return;
    }
    CRect cell = m_editButtonRect;
    switch (item->GetEditMode()) {
        case EM_INPLACE:
            cell.DeflateRect(1, 2, 0, 0);
            OpenInPlaceEdit(cell, TextToEdit(*item));
            break;
        case EM_DROPDOWN:
            DropDown(*item);
            break;
        case EM_MODAL:
            EditInDialog(item->id);
            break;
        case EM_INPLACE_BUTTON:
            OpenInPlaceOrModal(*item, point);
            break;
        case EM_CUSTOM:
            TellCustomItem(&ICustomItem::OnLButtonUp, point);
            break;
        default:
            break;
    }
}

// The button works once the item has been focused: the release that follows the focusing press on the button
// deliberately opens the edit.
void CPropertyGrid::OpenInPlaceOrModal(const CGridItem& item, CPoint point) {
    const bool onText = point.x < m_editButtonRect.right - m_rowHeight;
    if (!std::exchange(m_textPartPressed, true) || onText) {
        CRect cell = m_editButtonRect;
        cell.DeflateRect(2, 2, m_rowHeight, 0);
        OpenInPlaceEdit(cell, TextToEdit(item));
    } else {
        EditInDialog(item.id);
    }
}

void CPropertyGrid::OpenInPlaceEdit(const CRect& rect, const std::wstring& text) {
    auto edit = std::make_unique<CPropertyGridInPlaceEdit>(this, rect, WS_CHILD, IN_PLACE_EDIT_ID, text);
    if (edit->GetSafeHwnd() == nullptr) {
        return;
    }
    edit->SetColors(m_colors.back, m_colors.text);
    edit->SetFont(&m_font);
    edit->ShowWindow(SW_SHOW);
    m_editor = std::move(edit);
}

void CPropertyGrid::DropDown(const CGridItem& item) {
    const CRect& button = m_editButtonRect;
    const CRect under(m_gutter, button.bottom, button.right, button.bottom + popUpHeight);
    if (item.kind == IT_CUSTOM) {
        std::get<ICustomItem*>(item.value)->ShowDropDown({m_gutter, button.top, button.right, button.bottom});
    } else if (item.kind == IT_DATE) {
        OpenCalendar(item, under);
    } else {
        OpenList(item, under);
    }
}

void CPropertyGrid::OpenList(const CGridItem& item, const CRect& under) {
    auto list = std::make_unique<CPropertyGridCombo>();
    if (!list->Create(WS_CHILD, under, this, 0)) {
        return;
    }
    list->SetColors(m_colors.back, m_colors.text, m_colors.focus, m_colors.focusText);
    list->SetFont(&m_font);
    int selection = 0;
    if (item.kind == IT_BOOLEAN) {
        list->AddString(m_texts.trueText);
        list->AddString(m_texts.falseText);
        selection = std::get<bool>(item.value) ? 0 : 1;
    } else {
        for (const std::wstring& choice : item.options) {
            list->AddString(choice);
        }
        selection = std::get<int>(item.value);
    }
    if (!item.undefined) {
        list->SetCurSel(selection);
    }
    m_editor = std::move(list);
    m_editor->ShowWindow(SW_SHOW);
}

void CPropertyGrid::OpenCalendar(const CGridItem& item, CRect under) {
    auto calendar = std::make_unique<CPropertyGridMonthCalCtrl>();
    ClientToScreen(&under);
    if (!calendar->CWnd::CreateEx(0, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER, under, GetParent(), 0)) {
        return;
    }
    // A date that is none leaves today selected.
    calendar->SetCurSel(std::get<COleDateTime>(item.value));
    calendar->SetOwner(this);
    calendar->SizeMinReq(TRUE);
    CRect window;
    calendar->GetWindowRect(&window);
    m_editor = std::move(calendar);
    m_editor->SetWindowPos(nullptr, under.right - window.Width(), under.top, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

// The list closed with a choice. An index outside the choices is deliberately stored as it is; a Combo then
// shows nothing. Another kind of item deliberately leaves the list open.
void CPropertyGrid::TakeChoice(int index) {
    CGridItem* const item = FindFocusedItem();
    if (item == nullptr || (item->kind != IT_BOOLEAN && item->kind != IT_COMBO)) {
        return;
    }
    std::unique_ptr<CWnd> list = std::move(m_editor);
    if (item->kind == IT_BOOLEAN) {
        item->value = index == 0;
    } else {
        item->value = index;
    }
    item->undefined = false;
    NotifyChanged(item->id);
    DestroyEditor(std::move(list));
    Repaint();
}

// A custom item may lead to another edit's end meanwhile.
bool CPropertyGrid::GiveText(const CGridItem& item, const std::wstring& text, bool isUntouched) {
    const bool outer = std::exchange(m_editUntouched, isUntouched);
    const bool changed = std::get<ICustomItem*>(item.value)->SetStringValue(text);
    m_editUntouched = outer;
    return changed;
}

// The in-place edit ended. Another kind of item deliberately leaves the edit alone.
void CPropertyGrid::TakeText(const std::wstring& text) {
    CGridItem* const item = FindFocusedItem();
    if (item == nullptr || !IsEditedAsText(item->kind)) {
        return;
    }
    const UINT id = item->id;
    std::unique_ptr<CWnd> edit = std::move(m_editor);
    const auto* const inPlaceEdit = dynamic_cast<const CPropertyGridInPlaceEdit*>(edit.get());
    const bool isUntouched = inPlaceEdit != nullptr && inPlaceEdit->IsUntouched();
    const bool changed =
        item->kind == IT_CUSTOM ? GiveText(*item, text, isUntouched) : StoreText(*item, text, isUntouched);
    if (changed) {
        NotifyChanged(id);
    }
    DestroyEditor(std::move(edit));
    Repaint();
}

// A date of the calendar was chosen.
void CPropertyGrid::TakeDate() {
    CGridItem* const item = FindFocusedItem();
    const auto* const calendar = dynamic_cast<const CMonthCalCtrl*>(m_editor.get());
    COleDateTime date;
    if (item == nullptr || item->kind != IT_DATE || calendar == nullptr || !calendar->GetCurSel(date)) {
        return;
    }
    std::unique_ptr<CWnd> ended = std::move(m_editor);
    // The selection of today carries the time of day; a Date holds a day.
    item->value = COleDateTime(date.GetYear(), date.GetMonth(), date.GetDay(), 0, 0, 0);
    item->undefined = false;
    NotifyChanged(item->id);
    DestroyEditor(std::move(ended));
    Repaint();
}
