// The keys that work the grid without a mouse, once a client has switched keyboard editing on
// (GridSettings::keyboardEditing): they open the focused row's editor and move the focus by pages. What
// CKeyController takes, it keeps.
//
// The window ends an open editor and paints what is still to be painted before it hands one of these on.
#pragma once

#include "propgrid/controller/Action.h"
#include "propgrid/controller/EditorOpening.h"

namespace tavrin::propgrid {

// The keys, with the system's numbers.
enum EEditKey : unsigned {
    KEY_RETURN = 13,
    KEY_PAGE_UP = 33,
    KEY_PAGE_DOWN = 34,
    KEY_END = 35,
    KEY_HOME = 36,
    KEY_F2 = 113,
    KEY_F4 = 115,
};

class CEditKeyController {
public:
    CEditKeyController(CGridModel& model, CGridLayout& layout) : m_model(model), m_layout(layout) {}

    // What F2 and Alt+Enter do, for clients too; keyboard editing need not be on.
    Actions EditFocusedItem() const { return m_editor.Open(); }
    Actions PressFocusedButton() const { return m_editor.PressButton(); }

    // F2 and F4 open the focused item's editor. Home, End, Page Up and Page Down focus the first and the last
    // row and the row a page away, and bring it into view; the order of the rows is that of the arrow keys.
    bool TakesKey(unsigned key) const;
    Actions PressKey(unsigned key);

    // With Alt: Down opens the editor, Enter presses the button at the end of the row.
    bool TakesAltKey(unsigned key) const;
    Actions PressAltKey(unsigned key) const;

    // A printable character opens an in-place edit with it; Space inverts a Boolean. Not "*" and "/", nor
    // anything on another kind of row.
    bool TakesCharacter(wchar_t character) const;
    Actions TypeCharacter(wchar_t character);

private:
    Actions FocusRow(const RowId& row);
    int CountRowsOfPage() const;
    bool IsOn() const { return m_model.settings.keyboardEditing; }

    CGridModel& m_model;
    CGridLayout& m_layout;
    CEditorOpening m_editor{m_model, m_layout};
};

}  // namespace tavrin::propgrid
