// One row's item, and one section: the records of the grid. Their owner is CGridModel, which keeps what
// depends on other records (ids, positions, the list of editable rows) in step.
#pragma once

#include <string>
#include <vector>

#include "propgrid/model/ItemType.h"
#include "propgrid/model/Value.h"

namespace tavrin::propgrid {

struct GridSection;

struct GridItem {
    Id id = kNoId;
    EItemType kind = IT_STRING;
    GridSection* section = nullptr;
    std::uint32_t row = 0;  // among the section's items
    bool editable = true;
    bool undefined = false;  // the undefined text replaces the value's
    bool savedUndefined = false;
    std::wstring name;
    // Combo: the choices. Integer, Double, Date, DateTime: at most one string, the display format. File: the
    // filter of the file dialog. Folder: the title of the folder browser.
    std::vector<std::wstring> options;
    Value value;
    Value saved;  // what `value` is compared with to mark it as modified

    // The section's list of editable rows follows.
    void SetEditable(bool newEditable);

    // Takes the saved copy of the value and of the undefined flag. For a custom item, which compares its
    // value itself, calls AcceptValue.
    void TakeSavedCopy();

    // Whether the value differs from the saved copy. Never for a custom item.
    bool IsModified() const;

    // One of EEditMode: by kind; a custom item is asked.
    int GetEditMode() const;

    // The custom item of an item of this kind, else null.
    ICustomItem* GetCustomItem() const;

    bool IsPath() const { return kind == IT_FILE || kind == IT_FOLDER; }

    // The first option, empty when there is none.
    const std::wstring& GetOption() const;
};

struct GridSection {
    Id id = kNoId;
    std::uint32_t position = 0;  // among the sections as they are displayed
    std::wstring name;
    bool collapsed = false;                   // hides the items in the categorised display
    std::vector<GridItem*> items;             // in the order of adding
    std::vector<std::uint32_t> editableRows;  // ascending
};

}  // namespace tavrin::propgrid
