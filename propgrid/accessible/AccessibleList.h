// The strings of a drop-down list, and what assistive technology is told of them: one element each, numbered
// from 1. Rectangles are in client coordinates of the list.
#pragma once

#include <string>
#include <vector>

#include "accessible/Terms.h"
#include "propgrid/layout/Geometry.h"

namespace tavrin::propgrid {

struct ListContents {
    // On each side of the strings, in pixels.
    static constexpr int kBorder = 1;

    std::wstring name;  // the row's that the list was dropped down under
    std::vector<std::wstring> strings;
    int selection = -1;  // from 0; any number
    int rowHeight = 1;   // in pixels; never 0
    int width = 0;       // of the client area, in pixels

    int GetLast() const { return static_cast<int>(strings.size()) - 1; }
    // The child that is selected as the list displays it: of an index that has no string, the nearest that
    // has one. kSelf in an empty list.
    int GetSelectedChild() const;
    unsigned GetState(int child, const accessible::WindowCondition& window) const;
    std::wstring GetName(int child) const;
    Rect GetRect(int child) const;
    // kSelf beside all strings.
    int HitTest(Point point) const;
};

}  // namespace tavrin::propgrid
