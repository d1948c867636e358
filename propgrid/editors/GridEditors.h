// The one editor that may be open in a property grid: a text edit, a list or a calendar.
//
// It ends in one of three ways. An editor that has a result sends the grid its message (GridMessages.h); the
// grid takes it out of here with Take and frees it when the result is handled. Or the grid closes it. Or it
// closes itself without a result: its object then stays here until the next Close.
#pragma once

#include <afxwin.h>

#include <memory>
#include <optional>
#include <string>

#include "propgrid/layout/Geometry.h"
#include "propgrid/model/GridModel.h"
#include "propgrid/painter/GridFonts.h"

namespace tavrin::propgrid {

// Destroys an editor's window, which may send the message that the editor ended, and then its object.
struct EditorDeleter {
    void operator()(CWnd* editor) const;
};
using EditorPointer = std::unique_ptr<CWnd, EditorDeleter>;

class CGridEditors {
public:
    // All of them outlive this object. The editors report to `grid`.
    CGridEditors(CWnd& grid, const CGridModel& model, GridFonts& fonts)
        : m_grid(grid), m_model(model), m_fonts(fonts) {}
    CGridEditors(const CGridEditors&) = delete;
    CGridEditors& operator=(const CGridEditors&) = delete;

    bool IsOpen() const { return m_editor != nullptr && m_editor->GetSafeHwnd() != nullptr; }

    // Each closes what is open first. Rectangles are in client coordinates of the grid; a list or a calendar
    // drops down under its cell. `typed`, unless it is 0, replaces the text as if it were typed; Escape
    // restores `text`.
    void OpenTextEdit(const Rect& rect, const std::wstring& name, const std::wstring& text, wchar_t typed);
    void OpenList(const GridItem& item, const Rect& cell);
    void OpenCalendar(const DateValue& date, const Rect& cell);

    // Closes what is open. m_editor is already null when the editor's window is destroyed.
    void Close() { Take(); }
    EditorPointer Take() { return std::move(m_editor); }

    // Whether the rows were removed since the editor was opened: its item is gone, even when a new one has
    // the id.
    bool HasLostItsItem() const { return m_editor != nullptr && m_generation != m_model.GetGeneration(); }

    // Whether the open text edit still has the text that it was opened with and the user never touched it.
    bool IsTextUntouched() const;
    // What is selected in the open calendar; nothing when no calendar is open.
    std::optional<DateValue> GetCalendarDate() const;

private:
    void Own(CWnd* editor);

    CWnd& m_grid;
    const CGridModel& m_model;
    GridFonts& m_fonts;
    EditorPointer m_editor;
    unsigned m_generation = 0;  // of the model, when the editor was opened
};

}  // namespace tavrin::propgrid
