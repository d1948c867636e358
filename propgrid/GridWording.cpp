#include "propgrid/GridWording.h"

namespace tavrin::propgrid {

namespace {

void TakeCaption(const CWnd* parent, int controlId, const wchar_t* otherwise, std::wstring& text) {
    if (!text.empty()) {
        return;
    }
    text = otherwise;
    const CWnd* const control = parent != nullptr ? parent->GetDlgItem(controlId) : nullptr;
    if (control != nullptr) {
        CString caption;
        control->GetWindowText(caption);
        text = caption.GetString();
    }
}

}  // namespace

void CGridWording::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    m_model.settings.texts.trueText = trueText;
    Change(m_model.settings.texts.falseText, falseText);
}

void CGridWording::TakeCaptions(const CWnd* parent) {
    TakeCaption(parent, IDOK, L"OK", m_model.settings.texts.ok);
    TakeCaption(parent, IDCANCEL, L"Cancel", m_model.settings.texts.cancel);
}

}  // namespace tavrin::propgrid
