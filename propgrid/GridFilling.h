// The part of the grid's client interface that adds sections and items. The grid copies the values that it is
// given; a custom item stays its creator's.
#pragma once

#include <atlcomtime.h>

#include <string>
#include <vector>

#include "propgrid/GridLook.h"
#include "propgrid/model/ICustomItem.h"

namespace tavrin::propgrid {

class CGridFilling : public CGridLook {
public:
    // The id of no section and no item.
    static constexpr UINT NO_ID = kNoId;

    // Adds a section before the one whose id is `before`, or at the end if no section has that id.
    // Returns its id; ids are given in the order of adding, from 0.
    UINT AddSection(const std::wstring& name, bool collapsed = false, UINT before = NO_ID);

    // Appends an item of any kind to a section; the typed functions below do the same. `value` points to
    // an int, a double, a std::wstring, a bool, a COleDateTime, a COLORREF or a LOGFONTW, whichever the
    // kind stores (see EItemType); for IT_CUSTOM it is the item, converted to ICustomItem* first.
    //
    // Returns the item's id, from 0 in the order of adding. Returns NO_ID, and changes nothing, when no
    // section has that id, when the section has an item of exactly this name already, when the kind is
    // unknown or when `value` is null.
    //
    // An item that is not editable is displayed in a colour of its own and opens no editor. An undefined one
    // displays the grid's undefined text instead of its value, and GetItemValue fails for it; a custom item
    // is never undefined.
    UINT AddItem(UINT section, EItemType kind, const std::wstring& name, const void* value,
                 bool editable = true, bool undefined = false);

    UINT AddStringItem(UINT section, const std::wstring& name, const std::wstring& value,
                       bool editable = true, bool undefined = false);
    // A text may hold line breaks (CR LF), which are displayed as a pilcrow.
    UINT AddTextItem(UINT section, const std::wstring& name, const std::wstring& value, bool editable = true,
                     bool undefined = false);
    // `format` is a printf format for exactly one int, or one double. The client must make sure that it
    // is valid: it is passed to swprintf unchanged. An empty one means the default.
    UINT AddIntegerItem(UINT section, const std::wstring& name, int value, const std::wstring& format = L"%d",
                        bool editable = true, bool undefined = false);
    UINT AddDoubleItem(UINT section, const std::wstring& name, double value,
                       const std::wstring& format = L"%g", bool editable = true, bool undefined = false);
    // `value` is an index into `choices`; one that is out of range displays an empty value.
    UINT AddComboItem(UINT section, const std::wstring& name, const std::vector<std::wstring>& choices,
                      int value, bool editable = true, bool undefined = false);
    UINT AddBooleanItem(UINT section, const std::wstring& name, bool value, bool editable = true,
                        bool undefined = false);
    // `format` is that of COleDateTime::Format; without one the value is displayed as the user's locale
    // writes a date, or a date with its time. A null date gives an empty text.
    UINT AddDateItem(UINT section, const std::wstring& name, const COleDateTime& value,
                     const std::wstring& format = {}, bool editable = true, bool undefined = false);
    UINT AddDateTimeItem(UINT section, const std::wstring& name, const COleDateTime& value,
                         const std::wstring& format = {}, bool editable = true, bool undefined = false);
    // `filter` is that of CFileDialog. A path too long for its column is shortened in the middle.
    UINT AddFileItem(UINT section, const std::wstring& name, const std::wstring& path,
                     const std::wstring& filter, bool editable = true, bool undefined = false);
    // `title` is the text over the folder browser's tree.
    UINT AddFolderItem(UINT section, const std::wstring& name, const std::wstring& path,
                       const std::wstring& title, bool editable = true, bool undefined = false);
    UINT AddColorItem(UINT section, const std::wstring& name, COLORREF value, bool editable = true,
                      bool undefined = false);
    UINT AddFontItem(UINT section, const std::wstring& name, const LOGFONTW& value, bool editable = true,
                     bool undefined = false);
    // The client keeps ownership of the item, which must live as long as the grid holds it; its m_pGrid
    // becomes this grid. Null is refused (NO_ID).
    UINT AddCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable = true);

    // Removes all sections and items; ids start at 0 again. Deliberately leaves the focused ids alone: a
    // new row that gets the id of the focused one has the focus. It leaves an open editor alone too, whose
    // result is dropped when it ends.
    void ResetContents();

protected:
    CGridFilling() = default;
    ~CGridFilling() = default;

private:
    UINT AddItemWithOptions(UINT section, EItemType kind, const std::wstring& name, const void* value,
                            std::vector<std::wstring> options, bool editable, bool undefined);
    UINT AddItemWithOption(UINT section, EItemType kind, const std::wstring& name, const void* value,
                           const std::wstring& option, bool editable, bool undefined);
    UINT InsertCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable);
};

}  // namespace tavrin::propgrid
