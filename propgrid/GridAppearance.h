// What a client sets of the grid as a whole: display mode, divider, flags, texts, colours. Every setter
// repaints.
#pragma once

#include <string>

#include "propgrid/GridClient.h"

namespace tavrin::propgrid {

class CGridAppearance : public CGridClient {
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

    // The values of Boolean items ("True", "False").
    void SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText);
    std::wstring GetBooleanText(bool value) const { return value ? Texts().trueText : Texts().falseText; }
    // The buttons of the grid's dialogs. Empty until the grid is initialised, which then takes the texts
    // of its parent's controls 1 and 2, or "OK" and "Cancel".
    void SetOkText(const std::wstring& text) { Change(m_model.settings.texts.ok, text); }
    std::wstring GetOkText() const { return Texts().ok; }
    void SetCancelText(const std::wstring& text) { Change(m_model.settings.texts.cancel, text); }
    std::wstring GetCancelText() const { return Texts().cancel; }
    // The labels of the date and time dialog ("Date", "Time").
    void SetDateText(const std::wstring& text) { Change(m_model.settings.texts.date, text); }
    std::wstring GetDateText() const { return Texts().date; }
    void SetTimeText(const std::wstring& text) { Change(m_model.settings.texts.time, text); }
    std::wstring GetTimeText() const { return Texts().time; }
    // What an undefined item displays, and what a grid without sections displays; both empty at the start.
    void SetUndefinedText(const std::wstring& text) { Change(m_model.settings.texts.undefined, text); }
    std::wstring GetUndefinedText() const { return Texts().undefined; }
    void SetEmptyListText(const std::wstring& text) { Change(m_model.settings.texts.emptyList, text); }
    std::wstring GetEmptyListText() const { return Texts().emptyList; }

    // Colours, taken from the system when the grid is constructed.
    void SetTextColor(COLORREF color) { ChangeColor(&GridColors::text, color); }
    COLORREF GetTextColor() const { return Colors().text; }
    void SetTitleColor(COLORREF color) { ChangeColor(&GridColors::title, color); }
    COLORREF GetTitleColor() const { return Colors().title; }
    void SetBackColor(COLORREF color) { ChangeColor(&GridColors::back, color); }
    COLORREF GetBackColor() const { return Colors().back; }
    void SetShadeColor(COLORREF color) { ChangeColor(&GridColors::shade, color); }
    COLORREF GetShadeColor() const { return Colors().shade; }
    void SetFocusColor(COLORREF color) { ChangeColor(&GridColors::focus, color); }
    COLORREF GetFocusColor() const { return Colors().focus; }
    void SetFocusTextColor(COLORREF color) { ChangeColor(&GridColors::focusText, color); }
    COLORREF GetFocusTextColor() const { return Colors().focusText; }
    void SetEditableColor(COLORREF color) { ChangeColor(&GridColors::editable, color); }
    COLORREF GetEditableColor() const { return Colors().editable; }
    void SetNonEditableColor(COLORREF color) { ChangeColor(&GridColors::nonEditable, color); }
    COLORREF GetNonEditableColor() const { return Colors().nonEditable; }

protected:
    CGridAppearance();
    ~CGridAppearance() = default;

private:
    const GridTexts& Texts() const { return m_model.settings.texts; }
    const GridColors& Colors() const { return m_model.settings.colors; }
    void ChangeColor(Color GridColors::*color, COLORREF value) {
        Change(m_model.settings.colors.*color, static_cast<Color>(value));
    }
};

}  // namespace tavrin::propgrid
