#include "propgrid/painter/SystemText.h"

#include "propgrid/painter/FrameworkTypes.h"

namespace tavrin::propgrid {

std::wstring CSystemText::GetDateText(const DateValue& date, const std::wstring& format,
                                      bool withTime) const {
    const COleDateTime value = ToOleDate(date);
    const DWORD localeFlags = withTime ? 0 : VAR_DATEVALUEONLY;
    return (format.empty() ? value.Format(localeFlags, LANG_USER_DEFAULT) : value.Format(format.c_str()))
        .GetString();
}

}  // namespace tavrin::propgrid
