// The values of items.
#pragma once

#include <string>

#include "propgrid/GridRows.h"

namespace tavrin::propgrid {

class CGridValues : public CGridRows {
public:
    // The value of an item. False, and `value` untouched, when no item has that id, when the item is
    // undefined, or when its kind stores another type: int is Integer and Combo, a string is String,
    // Text, File and Folder, a date is Date and DateTime.
    bool GetItemValue(UINT item, int& value) const;
    bool GetItemValue(UINT item, double& value) const;
    bool GetItemValue(UINT item, std::wstring& value) const;
    bool GetItemValue(UINT item, bool& value) const;
    bool GetItemValue(UINT item, COleDateTime& value) const;
    bool GetItemValue(UINT item, COLORREF& value) const;
    bool GetItemValue(UINT item, LOGFONTW& value) const;
    bool GetItemValue(UINT item, ICustomItem*& value) const;

    // Gives an item a value, which also makes it defined. The saved copy stays, so a different value
    // is displayed as modified. False when no item has that id or when its kind stores another type.
    bool SetItemValue(UINT item, int value);
    bool SetItemValue(UINT item, double value);
    bool SetItemValue(UINT item, const std::wstring& value);
    bool SetItemValue(UINT item, bool value);
    bool SetItemValue(UINT item, const COleDateTime& value);
    bool SetItemValue(UINT item, COLORREF value);
    bool SetItemValue(UINT item, const LOGFONTW& value);
    // Puts another custom item into the row; null is refused.
    bool SetItemValue(UINT item, ICustomItem* value);
    // A literal would otherwise be taken for a bool.
    bool SetItemValue(UINT item, const wchar_t* value) { return SetItemValue(item, std::wstring(value)); }

    // The text that the value column displays, before a long path is shortened; point sizes are those of
    // the screen. Empty for a custom item, and when no item has that id.
    std::wstring GetItemText(UINT id) const;

    // Takes the saved copies of all items anew, so that nothing is modified any more; custom items are
    // notified by ICustomItem::AcceptValue.
    void AcceptValues();
    // False also when no item has that id. A custom item marks its changes itself and never counts.
    bool IsItemModified(UINT id) const;

protected:
    CGridValues() = default;
    ~CGridValues() = default;

private:
    template <class T>
    const T* FindValue(UINT id) const;
    template <class T>
    bool ReadValue(UINT id, T& value) const;
    template <class T>
    bool WriteValue(UINT id, T value);
};

}  // namespace tavrin::propgrid
