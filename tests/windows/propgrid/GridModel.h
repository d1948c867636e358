// A simple second model of what a property grid shows: plain lists of what was put into the grid, and its
// settings. It serves the tests that compare a grid with a second painter, and knows nothing of the grid's
// inside.
//
// Positions are pixels of the grid's client area.
#pragma once

#include <afxwin.h>
#include <atlcomtime.h>

#include <optional>
#include <string>
#include <vector>

#include "propgrid/DistanceItem.h"
#include "propgrid/PropertyGrid.h"

namespace tests {

using namespace tavrin::propgrid;

inline constexpr UINT kNoId = 0xFFFFFFFF;

// A custom item that draws a figure in its cell with what the grid selected, and leaves the device context in
// disorder.
class CFigureItem : public ICustomItem {
public:
    explicit CFigureItem(int editMode) : m_editMode(editMode) {}

    int GetEditMode() override { return m_editMode; }
    void DrawItem(CDC& dc, CRect rect, bool focused) override;
    void AcceptValue() override {}
    bool OnLButtonDown(CRect, CPoint) override { return false; }
    void OnMouseMove(CRect, CPoint) override {}
    void OnLButtonUp(CRect, CPoint) override {}
    std::wstring GetStringValue() override { return {}; }
    bool SetStringValue(std::wstring) override { return false; }
    void ShowDropDown(CRect) override {}
    bool OnButtonClicked() override { return false; }

private:
    int m_editMode;
};

// A value of any kind: one member for each type that the kinds store.
struct ModelValue {
    int integer = 0;     // Integer, Combo
    double number = 0;   // Double; the length of a distance item
    std::wstring text;   // String, Text, File, Folder
    bool flag = false;   // Boolean
    COleDateTime date;   // Date, DateTime
    COLORREF color = 0;  // Color
    LOGFONTW font = {};  // Font
};

struct ModelItem {
    UINT id = kNoId;
    EItemType kind = IT_STRING;
    std::wstring name;
    bool editable = true;
    bool undefined = false;
    std::wstring format;                // Integer, Double, Date, DateTime; empty for the default one
    std::vector<std::wstring> choices;  // Combo
    ModelValue value;

    // The copies that the value is compared with to show it as modified.
    ModelValue savedValue;
    bool savedUndefined = false;

    // IT_CUSTOM: a figure, or a distance item.
    CFigureItem* figure = nullptr;
    CDistanceItem* distance = nullptr;
    double distanceReference = 0;  // the length that the distance item was made with

    int GetEditMode() const;
    // Differs from the saved value in what the kind stores.
    bool IsModified() const;
};

struct ModelSection {
    UINT id = kNoId;
    std::wstring name;
    bool collapsed = false;
    std::vector<ModelItem> items;
};

struct ModelColors {
    COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF title = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF back = ::GetSysColor(COLOR_WINDOW);
    COLORREF shade = ::GetSysColor(COLOR_BTNFACE);
    COLORREF focus = ::GetSysColor(COLOR_HIGHLIGHT);
    COLORREF focusText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    COLORREF editable = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF nonEditable = ::GetSysColor(COLOR_GRAYTEXT);
};

struct GridModel {
    // A grid that has just been created, with nothing in it. `font` is its normal font.
    GridModel(CSize clientSize, const LOGFONTW& font);

    CSize client;
    LOGFONTW normalFont;
    LOGFONTW boldFont;
    int rowHeight;
    int gutter;
    UINT mode = 0;  // 0 by sections, 1 sorted by name, any other one flat
    bool shade = true;
    bool lines = true;
    bool divider = true;
    bool boldModified = false;
    bool boldEditable = false;
    ModelColors colors;
    std::wstring trueText = L"True";
    std::wstring falseText = L"False";
    std::wstring undefinedText;
    std::wstring emptyListText;

    std::vector<ModelSection> sections;
    UINT nextSection = 0;
    UINT nextItem = 0;
    UINT focusedSection = kNoId;
    UINT focusedItem = kNoId;
    bool pressed = false;  // the edit button is held

    // The vertical scroll bar. It comes with the first contents that need one; a hidden one is disabled.
    bool hasBar = false;
    bool barShown = false;
    int barPosition = 0;

    int GetContentHeight() const;
    int GetScrollPosition() const { return barShown ? barPosition : 0; }
    // The highest position that the bar takes: it has a range from 0 to the height of the contents, and its
    // page is the height of the window.
    int GetLastPosition() const { return GetContentHeight() - client.cy + 1; }
    // The width of a row: the client area without the bar.
    int GetRowWidth() const;

    // The scroll range is computed anew after every add, reset, change of mode and change of a collapsed
    // flag.
    void Relayout();
    void Resize(CSize size);
    // A drag of the bar's thumb.
    void ScrollTo(int position);

    ModelSection* FindSection(UINT id);
    const ModelItem* FindItem(UINT id) const;
    ModelItem* FindItem(UINT id);

    // What the value column shows, before a path is shortened.
    std::wstring GetValueText(const ModelItem& item) const;
};

}  // namespace tests
