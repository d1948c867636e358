// The texts of the grid that are not a row's own. Every setter repaints.
#pragma once

#include <string>

#include "propgrid/GridColoring.h"

namespace tavrin::propgrid {

class CGridWording : public CGridColoring {
public:
    // The values of Boolean items ("True", "False").
    void SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText);
    std::wstring GetBooleanText(bool value) const { return value ? Texts().trueText : Texts().falseText; }
    // The buttons of the grid's dialogs. Empty until the grid is initialized, which then takes the texts
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

protected:
    CGridWording() = default;
    ~CGridWording() = default;

    // Takes the captions of the buttons, where they are still empty, from the controls 1 and 2 of a parent,
    // which may be null.
    void TakeCaptions(const CWnd* parent);

private:
    const GridTexts& Texts() const { return m_model.settings.texts; }
};

}  // namespace tavrin::propgrid
