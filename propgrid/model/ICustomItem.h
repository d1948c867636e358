// The interface of an item that stores, draws and edits its value itself.
//
// All rectangles and points are in client coordinates of the grid, in pixels. The framework's classes are
// only declared here, so that the parts of the grid without windows can hold custom items; an implementation
// includes the framework.
#pragma once

#include <string>

#include "propgrid/model/ItemType.h"

class CDC;
class CPoint;
class CRect;

namespace tavrin::propgrid {

class CPropertyGrid;

// Implemented by the client and added with CPropertyGrid::AddCustomItem. The grid never frees a custom
// item: its creator owns it and keeps it alive for as long as the grid holds the row.
//
// The order of the virtual operations is part of the interface and stays as it is; for that reason, and
// because nothing is deleted through this interface, there is no virtual destructor.
class ICustomItem {
public:
    // One of EEditMode; asked whenever the grid needs it.
    virtual int GetEditMode() = 0;

    // Draws the value into `rect`, the value cell. `focused` says whether this is the focused row. Text
    // colour and font are set as for a built-in kind, a solid brush of the grid's text colour is selected,
    // the background mode is transparent; whatever the item changes in `dc` the grid restores.
    virtual void DrawItem(CDC& dc, CRect rect, bool focused) = 0;

    // The item saves its value as the one that later changes are compared with. Called when the item is
    // added and when all values are accepted.
    virtual void AcceptValue() = 0;

    // The left button went down in the grid while this item had the focus (EM_CUSTOM only). True
    // captures the mouse for the item.
    virtual bool OnLButtonDown(CRect rect, CPoint point) = 0;

    // The mouse moved while the item held the capture.
    virtual void OnMouseMove(CRect rect, CPoint point) = 0;

    // The left button was released while the item held the capture, which the grid has released already. A
    // click that OnLButtonDown did not capture is not reported.
    virtual void OnLButtonUp(CRect rect, CPoint point) = 0;

    // The text that the in-place edit opens with, and that screen readers are given as the value. The latter
    // is asked for between any two messages.
    virtual std::wstring GetStringValue() = 0;

    // Takes the text that the in-place edit ended with. True when the value changed; the grid then
    // notifies its owner and repaints.
    virtual bool SetStringValue(std::wstring text) = 0;

    // The user opens an EM_DROPDOWN item, by a click or a key: it shows its own drop-down under `rect`.
    virtual void ShowDropDown(CRect rect) = 0;

    // The user pressed the button of an EM_MODAL or EM_INPLACE_BUTTON item, by the mouse or a key, or
    // double-clicked an EM_MODAL item. True when the value changed; the grid then notifies its owner and
    // repaints.
    virtual bool OnButtonClicked() = 0;

    // The grid that holds the item; not owned. Set when the item is added.
    CPropertyGrid* m_pGrid = nullptr;

protected:
    ~ICustomItem() = default;
};

}  // namespace tavrin::propgrid
