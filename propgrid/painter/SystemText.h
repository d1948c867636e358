// The texts that only the system knows.
#pragma once

#include "propgrid/model/ValueText.h"

namespace tavrin::propgrid {

class CSystemText final : public ISystemText {
public:
    // The vertical resolution of the device that texts are for.
    explicit CSystemText(int pixelsPerInch) : m_pixelsPerInch(pixelsPerInch) {}

    // An invalid date gives the framework's text for it.
    std::wstring GetDateText(const DateValue& date, const std::wstring& format, bool withTime) const override;
    int GetPixelsPerInch() const override { return m_pixelsPerInch; }

private:
    int m_pixelsPerInch;
};

}  // namespace tavrin::propgrid
