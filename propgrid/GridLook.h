// How the grid displays its rows: display mode, divider, flags. Every setter repaints.
#pragma once

#include "propgrid/GridWording.h"

namespace tavrin::propgrid {

class CGridLook : public CGridWording {
public:
    using enum EDisplayMode;

    // From the left edge of the value rectangle to the value's text; custom items place theirs alike.
    static int GetTextMargin() { return CGridLayout::kTextMargin; }

    // One of EDisplayMode; the initial one is DM_CATEGORIZED. Any other number displays as DM_FLAT.
    void SetDisplayMode(UINT mode);
    UINT GetDisplayMode() const { return m_model.settings.displayMode; }

    // The x position of the divider between the columns; half the client width at the start.
    void SetGutterWidth(int x);
    int GetGutterWidth() const { return m_model.settings.gutter; }

    // Display flags, all true at the start: shade the header rows and the band at the left; lines
    // between rows; the vertical divider; whether items that are not editable can have the focus.
    void SetShadeHeaders(bool shade) { Change(m_model.settings.shadeHeaders, shade); }
    bool GetShadeHeaders() const { return m_model.settings.shadeHeaders; }
    void SetDrawLines(bool draw) { Change(m_model.settings.drawLines, draw); }
    bool GetDrawLines() const { return m_model.settings.drawLines; }
    void SetDrawDivider(bool draw) { Change(m_model.settings.drawDivider, draw); }
    bool GetDrawDivider() const { return m_model.settings.drawDivider; }
    void SetFocusNonEditable(bool focus) { Change(m_model.settings.focusNonEditable, focus); }
    bool GetFocusNonEditable() const { return m_model.settings.focusNonEditable; }

    // Font flags, both false at the start: bold values where modified, where editable. With both set an
    // editable value is bold, modified or not.
    void SetBoldModified(bool bold) { Change(m_model.settings.boldModified, bold); }
    bool GetBoldModified() const { return m_model.settings.boldModified; }
    void SetBoldEditable(bool bold) { Change(m_model.settings.boldEditable, bold); }
    bool GetBoldEditable() const { return m_model.settings.boldEditable; }

protected:
    CGridLook() = default;
    ~CGridLook() = default;
};

}  // namespace tavrin::propgrid
