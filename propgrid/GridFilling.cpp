#include "propgrid/GridFilling.h"

#include <utility>

#include "propgrid/PropertyGrid.h"
#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

namespace {

template <class T>
const T& As(const void* source) {
    return *static_cast<const T*>(source);
}

// Reads what a client passes for a value of a kind. False, and nothing read, when the kind is unknown or the
// pointer null.
bool ReadValue(EItemType kind, const void* source, Value& value) {
    if (source == nullptr) {
        return false;
    }
    switch (kind) {
        case IT_CUSTOM:
            value = static_cast<ICustomItem*>(const_cast<void*>(source));
            return true;
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            value = As<std::wstring>(source);
            return true;
        case IT_INTEGER:
        case IT_COMBO:
            value = As<int>(source);
            return true;
        case IT_DOUBLE:
            value = As<double>(source);
            return true;
        case IT_BOOLEAN:
            value = As<bool>(source);
            return true;
        case IT_DATE:
        case IT_DATETIME:
            value = ToDateValue(As<COleDateTime>(source));
            return true;
        case IT_COLOR:
            value = static_cast<Color>(As<COLORREF>(source));
            return true;
        case IT_FONT:
            value = ToFontPointer(As<LOGFONTW>(source));
            return true;
    }
    return false;
}

}  // namespace

// Ends the editor only when the row is complete: its result notifies the client, which may read the row.
UINT CGridFilling::AddSection(const std::wstring& name, bool collapsed, UINT before) {
    const UINT id = m_model.AddSection(name, collapsed, before);
    LeaveEditor();
    RelayoutLater();
    return id;
}

UINT CGridFilling::AddItemWithOptions(UINT section, EItemType kind, const std::wstring& name,
                                      const void* value, std::vector<std::wstring> options, bool editable,
                                      bool undefined) {
    Value read;
    if (!ReadValue(kind, value, read)) {
        return NO_ID;
    }
    const UINT id =
        kind == IT_CUSTOM
            ? InsertCustomItem(section, name, std::get<ICustomItem*>(read), editable)
            : m_model.AddItem(section, kind, name, std::move(read), editable, undefined, std::move(options));
    if (id != NO_ID) {
        LeaveEditor();
        RelayoutLater();
    }
    return id;
}

// Sets m_pGrid first, since the model calls AcceptValue on the item; restores it if no row was added.
UINT CGridFilling::InsertCustomItem(UINT section, const std::wstring& name, ICustomItem* item,
                                    bool editable) {
    CPropertyGrid* const previous = std::exchange(item->m_pGrid, static_cast<CPropertyGrid*>(this));
    const UINT id = m_model.AddItem(section, IT_CUSTOM, name, item, editable, false);
    if (id == NO_ID) {
        item->m_pGrid = previous;
    }
    return id;
}

// The default format is not stored: a number without a format displays the same and takes less memory.
UINT CGridFilling::AddItemWithOption(UINT section, EItemType kind, const std::wstring& name,
                                     const void* value, const std::wstring& option, bool editable,
                                     bool undefined) {
    const bool isUsual = (kind == IT_INTEGER && option == L"%d") || (kind == IT_DOUBLE && option == L"%g");
    std::vector<std::wstring> options;
    if (!isUsual) {
        options.push_back(option);
    }
    return AddItemWithOptions(section, kind, name, value, std::move(options), editable, undefined);
}

UINT CGridFilling::AddItem(UINT section, EItemType kind, const std::wstring& name, const void* value,
                           bool editable, bool undefined) {
    return AddItemWithOptions(section, kind, name, value, {}, editable, undefined);
}

UINT CGridFilling::AddStringItem(UINT section, const std::wstring& name, const std::wstring& value,
                                 bool editable, bool undefined) {
    return AddItem(section, IT_STRING, name, &value, editable, undefined);
}

UINT CGridFilling::AddTextItem(UINT section, const std::wstring& name, const std::wstring& value,
                               bool editable, bool undefined) {
    return AddItem(section, IT_TEXT, name, &value, editable, undefined);
}

UINT CGridFilling::AddIntegerItem(UINT section, const std::wstring& name, int value,
                                  const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_INTEGER, name, &value, format, editable, undefined);
}

UINT CGridFilling::AddDoubleItem(UINT section, const std::wstring& name, double value,
                                 const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DOUBLE, name, &value, format, editable, undefined);
}

UINT CGridFilling::AddComboItem(UINT section, const std::wstring& name,
                                const std::vector<std::wstring>& choices, int value, bool editable,
                                bool undefined) {
    return AddItemWithOptions(section, IT_COMBO, name, &value, choices, editable, undefined);
}

UINT CGridFilling::AddBooleanItem(UINT section, const std::wstring& name, bool value, bool editable,
                                  bool undefined) {
    return AddItem(section, IT_BOOLEAN, name, &value, editable, undefined);
}

UINT CGridFilling::AddDateItem(UINT section, const std::wstring& name, const COleDateTime& value,
                               const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DATE, name, &value, format, editable, undefined);
}

UINT CGridFilling::AddDateTimeItem(UINT section, const std::wstring& name, const COleDateTime& value,
                                   const std::wstring& format, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_DATETIME, name, &value, format, editable, undefined);
}

UINT CGridFilling::AddFileItem(UINT section, const std::wstring& name, const std::wstring& path,
                               const std::wstring& filter, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_FILE, name, &path, filter, editable, undefined);
}

UINT CGridFilling::AddFolderItem(UINT section, const std::wstring& name, const std::wstring& path,
                                 const std::wstring& title, bool editable, bool undefined) {
    return AddItemWithOption(section, IT_FOLDER, name, &path, title, editable, undefined);
}

UINT CGridFilling::AddColorItem(UINT section, const std::wstring& name, COLORREF value, bool editable,
                                bool undefined) {
    return AddItem(section, IT_COLOR, name, &value, editable, undefined);
}

UINT CGridFilling::AddFontItem(UINT section, const std::wstring& name, const LOGFONTW& value, bool editable,
                               bool undefined) {
    return AddItem(section, IT_FONT, name, &value, editable, undefined);
}

UINT CGridFilling::AddCustomItem(UINT section, const std::wstring& name, ICustomItem* item, bool editable) {
    return AddItem(section, IT_CUSTOM, name, item, editable);
}

void CGridFilling::ResetContents() {
    m_model.Clear();
    Relayout();
}

}  // namespace tavrin::propgrid
