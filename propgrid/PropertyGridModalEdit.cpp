// The property grid's items that are edited in a dialog.
//
// While a dialog runs the client may remove or replace the rows: nothing of an item is kept across it but its
// id, and the item is looked up again when the dialog has ended.
#include <utility>

#include "propgrid/GridDialogs.h"
#include "propgrid/PropertyGrid.h"

// Lets the user edit a copy of the item's value of type T; `ask` runs the dialog.
template <class T, class TAsk>
void CPropertyGrid::EditCopy(const CGridItem& item, TAsk ask) {
    const UINT id = item.id;
    const EItemType kind = item.kind;
    T value = std::get<T>(item.value);
    if (!ask(value)) {
        return;
    }
    CGridItem* const edited = m_contents.FindItem(id);
    if (edited == nullptr || edited->kind != kind) {
        return;
    }
    edited->value = std::move(value);
    edited->undefined = false;
    ReportChange(id);
}

void CPropertyGrid::EditInDialog(UINT id) {
    const CGridItem* const item = m_contents.FindItem(id);
    if (item == nullptr || !item->editable) {
        return;
    }
    CWnd* const parent = GetParent();
    const CGridDialogLook look{parent, item->name, &m_font, m_texts};
    const bool hasOption = !item->options.empty();
    const std::wstring option = hasOption ? item->options.front() : std::wstring();
    switch (item->kind) {
        case IT_TEXT:
            EditCopy<std::wstring>(*item, [&](std::wstring& text) { return AskForText(look, text); });
            break;
        case IT_DATETIME:
            EditCopy<COleDateTime>(*item, [&](COleDateTime& date) { return AskForDateTime(look, date); });
            break;
        case IT_FILE:
            EditCopy<std::wstring>(*item,
                                   [&](std::wstring& path) { return AskForFile(parent, option, path); });
            break;
        case IT_FOLDER:
            EditCopy<std::wstring>(*item, [&](std::wstring& path) {
                return AskForFolder(parent, hasOption ? &option : nullptr, path);
            });
            break;
        case IT_COLOR:
            EditCopy<COLORREF>(*item, [&](COLORREF& color) { return AskForColor(parent, color); });
            break;
        case IT_FONT:
            EditCopy<CGridFont>(*item, [&](CGridFont& font) {
                LOGFONTW chosen = *font;
                if (!AskForFont(parent, chosen)) {
                    return false;
                }
                font = std::make_shared<const LOGFONTW>(chosen);
                return true;
            });
            break;
        case IT_CUSTOM:
            PressCustomButton(*item);
            break;
        default:
            break;
    }
}

void CPropertyGrid::PressCustomButton(const CGridItem& item) {
    const UINT id = item.id;
    const bool changed = std::get<ICustomItem*>(item.value)->OnButtonClicked();
    if (changed && m_contents.FindItem(id) != nullptr) {
        ReportChange(id);
    }
}
