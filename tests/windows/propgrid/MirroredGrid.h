// A real grid in a window, and the model of what it shows: each operation is carried out on both, and logged,
// so that a difference can be reproduced by hand.
#pragma once

#include <deque>
#include <string>

#include "tests/windows/propgrid/GridModel.h"

namespace tests {

// The top-level window around the grids. A test sets the font that it answers WM_GETFONT with.
class CMirrorParent : public CWnd {
public:
    CMirrorParent();
    ~CMirrorParent() override { DestroyWindow(); }

    // Null for no answer.
    void SetAnsweredFont(const LOGFONTW* font);
    // The normal font of a grid that is created now.
    LOGFONTW GetGridFont() const;

protected:
    afx_msg LRESULT OnGetFont(WPARAM zero, LPARAM alsoZero);
    DECLARE_MESSAGE_MAP()

private:
    CFont m_font;
};

class CMirroredGrid {
public:
    CMirroredGrid(CMirrorParent& parent, CSize size);
    ~CMirroredGrid() { m_grid.DestroyWindow(); }
    CMirroredGrid(const CMirroredGrid&) = delete;
    CMirroredGrid& operator=(const CMirroredGrid&) = delete;

    CPropertyGrid& GetGrid() { return m_grid; }
    const GridModel& GetModel() const { return m_model; }
    // The operations so far, one a line.
    const std::string& GetLog() const { return m_log; }

    // Settings.
    void SetMode(UINT mode);
    void SetGutter(int x);
    void SetDisplayFlags(bool shade, bool lines, bool divider, bool focusNonEditable);
    void SetBoldFlags(bool modified, bool editable);
    void SetColors(const ModelColors& colors);
    void SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText);
    void SetUndefinedText(const std::wstring& text);
    void SetEmptyListText(const std::wstring& text);

    // Contents. The adds return kNoId where the grid should refuse.
    UINT AddSection(const std::wstring& name, bool collapsed, UINT before);
    // Adds an item with the description's kind, name, value and so on.
    UINT AddItem(UINT section, const ModelItem& description);
    // Makes a custom item that the mirrored grid owns.
    UINT AddFigure(UINT section, const std::wstring& name, bool editable, int editMode);
    UINT AddDistance(UINT section, const std::wstring& name, bool editable, double length);
    void SetValue(UINT item, const ModelValue& value);
    void SetUndefined(UINT item, bool undefined);
    void SetEditable(UINT item, bool editable);
    void AcceptValues();
    void ResetContents();
    void SetCollapsed(UINT section, bool collapsed);

    // State.
    void FocusItem(UINT item);
    void FocusSection(UINT section);
    void Resize(CSize size);
    void ScrollTo(int position);
    // Presses the left button at a point of the edit button, where it is held until the release.
    void Press(CPoint point);
    void Release();

private:
    UINT AddToGrid(UINT section, const ModelItem& item);
    UINT AddToModel(UINT section, const ModelItem& item);
    bool SetInGrid(const ModelItem& item, const ModelValue& value);
    bool SetTypedDistance(ModelItem& item, double length);

    void Note(const std::string& line) { m_log += line + '\n'; }

    std::deque<CFigureItem> m_figures;  // stable addresses; they outlive the grid
    std::deque<CDistanceItem> m_distances;
    CPropertyGrid m_grid;
    GridModel m_model;
    std::string m_log;
};

}  // namespace tests
