// The status line: a text (what is being asked, or a hint), the mouse's place in the drawing, and the unit
// format with its precision. A click on either of the latter opens a menu.
#pragma once

#include <windows.h>

#include <string>

#include "devhost/drawing/Point.h"
#include "devhost/window/Scale.h"

class CStatusLine {
public:
    // Throws CUserError when there can be no window. Begins with decimal units and four digits.
    explicit CStatusLine(HWND parent);

    HWND Handle() const { return m_window; }
    int Height() const;
    // Takes the place at the bottom of the parent.
    void Layout();

    void ShowText(const std::wstring& text);
    void ShowPoint(SPoint point);
    // A point as the line shows it.
    std::wstring TextOf(SPoint point) const;

    void SetFormat(int lunits, int luprec);
    int Units() const { return m_units; }
    int Precision() const { return m_precision; }

    // What the line tells its parent by WM_NOTIFY: a click on the units or the precision opens the menu,
    // whose command (IDM_UNITS plus the units, IDM_PRECISION plus the precision) goes to the parent.
    void OnNotify(const NMHDR& header) const;
    // What the line asks its parent to draw, by WM_DRAWITEM.
    void DrawPart(const DRAWITEMSTRUCT& item) const;

private:
    void ShowFormat();
    void OpenMenu(int part) const;

    HWND m_window;
    CScale m_scale;
    int m_units = 2;
    int m_precision = 4;
    SPoint m_point;
};
