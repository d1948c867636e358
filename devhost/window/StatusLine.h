// The status line: a text (a question or a hint), the mouse's position in the drawing, and the unit format
// with its precision. A click on either of the latter opens a menu.
#pragma once

#include <windows.h>

#include <string>

#include "devhost/drawing/Point.h"
#include "devhost/window/Scale.h"

namespace devhost {

class CStatusLine {
public:
    // Throws CUserError when the window cannot be created. Initially decimal units with four digits.
    explicit CStatusLine(HWND parent);

    HWND Handle() const { return m_window; }
    int Height() const;
    // To be called after a change of CScale's resolution.
    void TakeResolution();
    // Moves to the bottom of the parent.
    void Layout();

    void ShowText(const std::wstring& text);
    void ShowPoint(Point point);
    // A point as the line shows it.
    std::wstring TextOf(Point point) const;
    // A length in the same format, and a direction (radians) in degrees.
    std::wstring TextOf(double length, double angle) const;

    void SetFormat(int lunits, int luprec);
    int Units() const { return m_units; }
    int Precision() const { return m_precision; }

    // Each opens its menu. The command (IDM_UNITS plus the units, IDM_PRECISION plus the precision) goes to
    // the parent.
    void OpenUnitsMenu() const;
    void OpenPrecisionMenu() const;
    // For WM_NOTIFY of the parent: a click on the units or the precision opens the menu.
    void OnNotify(const NMHDR& header) const;
    // For WM_DRAWITEM of the parent.
    void DrawPart(const DRAWITEMSTRUCT& item) const;

private:
    void ShowFormat();
    void OpenMenu(int part) const;

    HWND m_window;
    CScale m_scale;
    int m_units = 2;
    int m_precision = 4;
    Point m_point;
};

}  // namespace devhost
