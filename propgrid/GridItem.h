// What the property grid stores: the records of its sections and items, the value kinds with their
// texts, and the comparison that marks a value as modified. Nothing here needs a window.
//
// Rectangles are in client coordinates of the grid, in pixels, as the last paint recorded them. It records
// those of sections one by one; of items only where their list stood, so that rows out of sight cost it
// nothing.
#pragma once

#include <afxwin.h>
#include <atlcomtime.h>

#include <algorithm>
#include <memory>
#include <string>
#include <variant>
#include <vector>

class ICustomItem;

// The kinds of value. The numbers are stored by clients and stay as they are.
enum EItemType : int {
    IT_CUSTOM = 0,
    IT_STRING = 1,
    IT_TEXT = 2,  // may hold line breaks
    IT_INTEGER = 3,
    IT_DOUBLE = 4,
    IT_COMBO = 5,  // index into a list of choices
    IT_BOOLEAN = 6,
    IT_DATE = 7,
    IT_DATETIME = 8,
    IT_FILE = 9,
    IT_FOLDER = 10,
    IT_COLOR = 11,
    IT_FONT = 12,
};

// The texts of the grid that are not a row's own. The captions of the buttons stay empty until the grid
// is initialised, which then looks for them among the controls of its parent.
struct CGridTexts {
    std::wstring trueText = L"True";
    std::wstring falseText = L"False";
    std::wstring ok;
    std::wstring cancel;
    std::wstring date = L"Date";
    std::wstring time = L"Time";
    std::wstring undefined;
    std::wstring emptyList;
};

// A font's description takes 92 bytes and few rows hold one, so it stands apart; it never changes once
// made, and the current and the saved value may share it.
using CGridFont = std::shared_ptr<const LOGFONTW>;

// The value of an item, by the storage class of its kind: int (Integer, Combo), double (Double), string
// (String, Text, File, Folder), bool (Boolean), date (Date, DateTime), colour, font, custom item.
using CGridValue =
    std::variant<int, double, std::wstring, bool, COleDateTime, COLORREF, CGridFont, ICustomItem*>;

struct CGridItem;

// Where a list of rows stood when it was last painted, one row under the other, and what of them showed.
struct CGridPlace {
    int top = 0;  // of the first row
    int rowHeight = 0;
    CSize area;  // what the rows were clipped to, from the upper left corner of the window
    int gutter = 0;
    unsigned rows = 0;             // those that come behind were added since, and never painted
    bool sorted = false;           // the list was that of all items by name, not the section's own
    UINT buttonItem = 0xFFFFFFFF;  // the item with room for an edit button beside its value

    CRect GetRow(unsigned row) const;
    // The row at the upper edge of the window, or behind the last one.
    unsigned GetFirstShown() const {
        return top < 0 ? static_cast<unsigned>(-top / std::max(rowHeight, 1)) : 0;
    }
    // Whether anything of a row could be seen.
    bool Shows(const CRect& row) const;
};

struct CGridSection {
    UINT id = 0;
    std::wstring name;
    bool collapsed = false;         // hides the items in the categorised display
    std::vector<CGridItem*> items;  // in the order of adding
    CRect glyphRect;                // the plus or minus
    CRect headerRect;
    CGridPlace place;  // of the items
};

// One row. On 64-bit Windows it costs about 300 bytes beside its texts, and 50 more when it has options:
// 168 for this record, 24 for its entry in the index of names, 8 for each of its places in the list of
// ids, the section's list and the index's buckets (twice that at worst, as these grow ahead), and what
// the heap adds to its two or three blocks. A font adds 130, and 130 more while it is modified.
struct CGridItem {
    UINT id = 0;
    EItemType kind = IT_STRING;
    CGridSection* section = nullptr;
    unsigned row = 0;                 // among the section's items
    unsigned sortedRow = 0xFFFFFFFF;  // among all items by name; none before it is sorted in
    bool editable = true;
    bool undefined = false;
    bool savedUndefined = false;
    std::wstring name;
    // Combo: the choices. Integer, Double, Date, DateTime: at most one string, the display format. File:
    // the filter of the file dialog. Folder: the title of the folder browser.
    std::vector<std::wstring> options;
    CGridValue value;
    CGridValue saved;  // what `value` is compared with to mark it as modified

    // As the last paint left them that went through the section: of a row out of sight the name is the whole
    // row and the value empty, of one that was never painted both are empty.
    CRect GetNameRect() const;
    CRect GetValueRect() const;

    // Takes the saved copy of the value and of the undefined flag; a custom item is told to accept its
    // value, which is its own to compare.
    void TakeSavedCopy();

    // Whether the value differs from the saved copy: exactly, the date with its status, the font in all
    // its bytes. Never for a custom item.
    bool IsModified() const;

    // One of EEditMode: by kind; a custom item is asked.
    int GetEditMode() const;

    // The text of the value column: the undefined text while the item is undefined, else the value as
    // its kind shows it. Paths are not shortened here. Empty for a custom item, which draws itself.
    // `pixelsPerInch` is the vertical resolution of the device that point sizes are computed for.
    //
    // The format of an Integer goes to CString::Format with an int, that of a Double with a double, that
    // of a date to COleDateTime::Format. It is the client's contract that it asks for just that: nothing
    // checks it.
    std::wstring GetText(const CGridTexts& texts, int pixelsPerInch) const;

    bool IsPath() const { return kind == IT_FILE || kind == IT_FOLDER; }

private:
    CRect GetPaintedRow() const;
};

// Reads the value of an item of `kind` through an untyped pointer: to an int, a double, a std::wstring,
// a bool, a COleDateTime, a COLORREF or a LOGFONTW, as the kind stores it; for IT_CUSTOM the pointer is
// the ICustomItem* itself. False, and nothing read, when the kind is unknown or the pointer null.
bool ReadGridValue(EItemType kind, const void* source, CGridValue& value);
