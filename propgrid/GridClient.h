// The base of the grid's client interface: the state that its parts share, and their calls to the window.
//
// The interface is one chain of classes, each with a topic of its own: CGridColoring, CGridWording,
// CGridLook, CGridFilling, CGridRows, CGridValues, and at its end CPropertyGrid, the window.
#pragma once

#include <afxwin.h>

#include "propgrid/layout/GridLayout.h"
#include "propgrid/model/GridModel.h"

namespace tavrin::propgrid {

class CGridClient {
public:
    CGridClient(const CGridClient&) = delete;
    CGridClient& operator=(const CGridClient&) = delete;

protected:
    CGridClient() = default;
    ~CGridClient() = default;

    // Each does nothing before there is a window.
    virtual void Repaint() = 0;
    // The rows may have changed in number: lays them out at once, or with the next message that the grid
    // gets.
    virtual void Relayout() = 0;
    virtual void RelayoutLater() = 0;
    // Ends an open editor with its result, before its row changes. The owner's handler of the result may do
    // anything to the grid.
    virtual void LeaveEditor() = 0;
    // An item has another value, or another state; reported to assistive technology with the next paint.
    virtual void ValueChanged(Id item) = 0;
    virtual void StateChanged(Id item) = 0;

    template <class T>
    void Change(T& setting, const T& value) {
        setting = value;
        Repaint();
    }

    CGridModel m_model;
    CGridLayout m_layout{m_model};
};

}  // namespace tavrin::propgrid
