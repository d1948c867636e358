// What the property grid asks of an item whose value, drawing and editing are its own affair.
//
// All rectangles and points are in client coordinates of the grid, in pixels.
#pragma once

#include <afxwin.h>

#include <string>

class CPropertyGrid;

// How the value of an item is edited. The numbers are what GetEditMode returns.
enum EEditMode : int {
    EM_CUSTOM = 0,          // no editor: the item gets the mouse itself
    EM_INPLACE = 1,         // a text edit over the value
    EM_DROPDOWN = 2,        // a button that drops something down under the value
    EM_MODAL = 3,           // a button that opens a dialog
    EM_INPLACE_BUTTON = 4,  // a text edit, and beside it a square button
};

// Implemented by the client and added with CPropertyGrid::AddCustomItem. The grid never frees a custom
// item: its creator owns it and keeps it alive for as long as the grid holds the row.
//
// The order of the virtual operations is part of the interface and stays as it is; for that reason, and
// because nobody deletes through this interface, there is no virtual destructor.
class ICustomItem {
public:
    // One of EEditMode; asked whenever the grid needs it.
    virtual int GetEditMode() = 0;

    // Draws the value into `rect`, the value cell. `focused` says whether this is the focused row. Text
    // colour and font are set as for a built-in kind, the pen has the grid's shade colour, the brush is a
    // solid one of its text colour, the background mode is transparent; whatever the item changes in `dc` the
    // grid restores.
    virtual void DrawItem(CDC& dc, CRect rect, bool focused) = 0;

    // The grid takes the copy of the value that later changes are compared with: when the item is added
    // and when all values are accepted.
    virtual void AcceptValue() = 0;

    // The left button went down in the grid while this item had the focus (EM_CUSTOM only). True
    // captures the mouse for the item; the press that focuses the item does not come here.
    virtual bool OnLButtonDown(CRect rect, CPoint point) = 0;

    // The mouse moved while the item held the capture.
    virtual void OnMouseMove(CRect rect, CPoint point) = 0;

    // The left button was released at the end of a capture, which is over by then. A click that the item did
    // not capture does not come here.
    virtual void OnLButtonUp(CRect rect, CPoint point) = 0;

    // The text that the in-place edit opens with.
    virtual std::wstring GetStringValue() = 0;

    // Takes the text that the in-place edit ended with, touched or not (CPropertyGrid::IsEditUntouched). True
    // when the value changed; the grid then notifies its owner and repaints.
    virtual bool SetStringValue(std::wstring text) = 0;

    // A click on the value of an EM_DROPDOWN item: the item shows its own drop-down under `rect`.
    virtual void ShowDropDown(CRect rect) = 0;

    // The button of an EM_MODAL or EM_INPLACE_BUTTON item was pressed. True when the value changed; the
    // grid then notifies its owner and repaints.
    virtual bool OnButtonClicked() = 0;

    // The grid that holds the item; not owned. Set when the item is added.
    CPropertyGrid* m_pGrid = nullptr;

protected:
    ~ICustomItem() = default;
};
