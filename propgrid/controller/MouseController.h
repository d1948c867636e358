// What the mouse means to the grid: focusing rows, the edit button, the divider, custom items, double clicks.
//
// Hit tests go by the rectangles that the last paint recorded, so the window paints what is still to be
// painted before it hands on a press or an awaited release: two messages of the mouse may come without a
// paint between them.
#pragma once

#include "propgrid/controller/Action.h"
#include "propgrid/layout/GridLayout.h"

namespace tavrin::propgrid {

class CMouseController {
public:
    CMouseController(CGridModel& model, CGridLayout& layout) : m_model(model), m_layout(layout) {}

    // The left button went down. BeginPress comes before the window takes the focus, which may run the
    // client's code; Press when that is done; AnswerPress when Press asked a custom item, with its answer.
    void BeginPress() { m_editOnRelease = false; }
    Actions Press(Point point);
    Actions AnswerPress(bool taken, Point point);

    // `editing` is whether an editor is open.
    Actions Move(Point point, bool editing);
    Actions Release(Point point);

    // Whether a release may open an editor, which goes by the recorded rectangles.
    bool AwaitsRelease() const { return m_capture == CAP_EDIT_BUTTON || m_editOnRelease; }

    // Goes by the focus alone, which the first click has set.
    Actions DoubleClick();

    // Another window took the mouse away, or the window gave it back.
    Actions LoseCapture();

    // Whether the edit button looks pushed.
    bool IsButtonPressed() const { return m_buttonPressed; }

private:
    // What the mouse is captured for.
    enum ECapture { CAP_NONE, CAP_EDIT_BUTTON, CAP_CUSTOM_ITEM, CAP_DIVIDER };

    Actions Capture(ECapture mode);
    ECapture EndCapture(Actions& actions);
    Actions PressRow(const Hit& hit, Point point);
    void PressSection(const Hit& hit, Actions& actions);
    void PressItem(const Hit& hit, Point point);
    void MoveDivider(int x);
    void OpenEditor(Point point, Actions& actions);
    Rect GetEditCell() const;
    Action OpenTextOrDialog(const GridItem& item, Point point);
    void NotifyCustomItem(ECustomEvent event, Point point, Actions& actions) const;
    const GridItem* FindFocusedItem() const { return m_model.FindItem(m_model.GetFocus().item); }

    CGridModel& m_model;
    CGridLayout& m_layout;
    ECapture m_capture = CAP_NONE;
    bool m_buttonPressed = false;
    int m_lastDividerX = 0;        // of the mouse, while it drags the divider
    bool m_editOnRelease = false;  // the button went down on a value whose editor opens on release
    // The press that focused the EM_INPLACE_BUTTON item was left of its button. Once true, a release on the
    // button means the button; until then every release opens the text edit.
    bool m_textPartPressed = true;
};

}  // namespace tavrin::propgrid
