#include "propgrid/GridWording.h"

namespace tavrin::propgrid {

void CGridWording::SetBooleanTexts(const std::wstring& trueText, const std::wstring& falseText) {
    m_model.settings.texts.trueText = trueText;
    Change(m_model.settings.texts.falseText, falseText);
}

}  // namespace tavrin::propgrid
