// Carries out the actions that the controllers return, in a property grid's window.
//
// Custom items, dialogs and the owner's handler of a change may do anything meanwhile: remove rows, destroy
// the window. Each action looks its item up anew.
#pragma once

#include <afxwin.h>

#include "propgrid/GridScrollBar.h"
#include "propgrid/controller/MouseController.h"
#include "propgrid/editors/GridEditors.h"

namespace tavrin::propgrid {

// The window's functions that actions call.
class IGridWindow {
public:
    virtual CWnd& GetWindow() = 0;
    virtual void Repaint() = 0;
    virtual void Relayout() = 0;
    // Makes the layout's view that of the window as it is now.
    virtual void UpdateLayout() = 0;
    virtual void NotifyChanged(UINT item) = 0;

protected:
    ~IGridWindow() = default;
};

class CActionRunner {
public:
    struct Parts {
        IGridWindow& window;
        CGridModel& model;
        CMouseController& mouse;
        CGridEditors& editors;
        CGridScrollBar& scrollBar;
        GridFonts& fonts;
    };
    explicit CActionRunner(const Parts& parts) : m_parts(parts) {}
    CActionRunner(const CActionRunner&) = delete;
    CActionRunner& operator=(const CActionRunner&) = delete;

    // Carries the actions out in their order. Whether the message's default handling is to follow.
    bool Run(const Actions& actions);

    // Whether a custom item is being given a text that the user never touched.
    bool IsEditUntouched() const { return m_editUntouched; }

private:
    void Do(const action::BeginCapture& capture);
    void Do(const action::EndCapture& capture);
    void Do(const action::ShowCursor& cursor);
    void Do(const action::Repaint& repaint);
    void Do(const action::Relayout& relayout);
    void Do(const action::ScrollTo& scroll);
    void Do(const action::AskCustomItem& question);
    void Do(const action::NotifyCustomItem& event);
    void Do(const action::OpenTextEdit& edit);
    void Do(const action::DropDown& list);
    void Do(const action::EditInDialog& dialog);
    void Do(const action::GiveText& text);
    void Do(const action::Notify& change);
    void Do(const action::DefaultHandling& handling);

    HWND Window() const { return m_parts.window.GetWindow().GetSafeHwnd(); }
    const GridItem* FindEditableItem(Id id) const;
    ICustomItem* FindCustomItem(Id id) const;
    void ReportCustomChange(Id item, const ICustomItem* custom);

    Parts m_parts;
    bool m_defaultFollows = false;
    bool m_editUntouched = false;
};

}  // namespace tavrin::propgrid
