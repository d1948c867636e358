#include "propgrid/model/ValueText.h"

#include <cwchar>

#include "propgrid/model/ICustomItem.h"

namespace tavrin::propgrid {

namespace {

constexpr const wchar_t* kIntegerFormat = L"%d";
constexpr const wchar_t* kDoubleFormat = L"%g";

// Into a buffer that grows until the text fits: swprintf does not say how long it is. No number is longer
// than `kLongestNumber`; beyond it lies a format that no text comes from.
template <class TNumber>
std::wstring Format(const wchar_t* format, TNumber number) {
    constexpr std::size_t kLongestNumber = 1 << 16;
    std::wstring text(64, L'\0');
    for (;;) {
        const int length = std::swprintf(text.data(), text.size(), format, number);
        if (length >= 0 && static_cast<std::size_t>(length) < text.size()) {
            text.resize(static_cast<std::size_t>(length));
            return text;
        }
        if (text.size() >= kLongestNumber) {
            return {};
        }
        text.resize(4 * text.size());
    }
}

// Each line break is displayed as a pilcrow.
std::wstring JoinLines(const std::wstring& text) {
    std::wstring line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') {
            line += L'\u00B6';
            ++i;
        } else {
            line += text[i];
        }
    }
    return line;
}

std::wstring ColorText(Color color) {
    return std::to_wstring(RedOf(color)) + L"; " + std::to_wstring(GreenOf(color)) + L"; " +
           std::to_wstring(BlueOf(color));
}

// In points, rounded to the nearest, halves away from zero.
long long PointSizeOf(const FontValue& font, int pixelsPerInch) {
    constexpr long long kPointsPerInch = 72;
    const long long scaled = -kPointsPerInch * font.height;
    const long long half = pixelsPerInch / 2;
    return (scaled < 0 ? scaled - half : scaled + half) / pixelsPerInch;
}

std::wstring FontText(const FontValue& font, int pixelsPerInch) {
    return font.GetFaceName() + L"; " + std::to_wstring(PointSizeOf(font, pixelsPerInch)) + L"pt";
}

// An index without a choice, negative ones too, is a legal value that displays nothing.
std::wstring ChoiceText(const GridItem& item) {
    const auto index = static_cast<std::size_t>(std::get<int>(item.value));
    return index < item.options.size() ? item.options[index] : std::wstring();
}

}  // namespace

std::wstring FormatNumber(const std::wstring& format, int number) {
    return Format(format.empty() ? kIntegerFormat : format.c_str(), number);
}

std::wstring FormatNumber(const std::wstring& format, double number) {
    return Format(format.empty() ? kDoubleFormat : format.c_str(), number);
}

std::wstring GetValueText(const GridItem& item, const GridTexts& texts, const ISystemText& system) {
    if (item.undefined) {
        return texts.undefined;
    }
    switch (item.kind) {
        case IT_CUSTOM:
            return {};
        case IT_STRING:
        case IT_FILE:
        case IT_FOLDER:
            return std::get<std::wstring>(item.value);
        case IT_TEXT:
            return JoinLines(std::get<std::wstring>(item.value));
        case IT_INTEGER:
            return FormatNumber(item.GetOption(), std::get<int>(item.value));
        case IT_DOUBLE:
            return FormatNumber(item.GetOption(), std::get<double>(item.value));
        case IT_COMBO:
            return ChoiceText(item);
        case IT_BOOLEAN:
            return std::get<bool>(item.value) ? texts.trueText : texts.falseText;
        case IT_DATE:
        case IT_DATETIME:
            return system.GetDateText(std::get<DateValue>(item.value), item.GetOption(),
                                      item.kind == IT_DATETIME);
        case IT_COLOR:
            return ColorText(std::get<Color>(item.value));
        case IT_FONT:
            return FontText(*std::get<FontPointer>(item.value), system.GetPixelsPerInch());
    }
    return {};
}

std::wstring GetEditText(const GridItem& item) {
    switch (item.kind) {
        case IT_CUSTOM:
            return item.GetCustomItem()->GetStringValue();
        case IT_STRING:
            return std::get<std::wstring>(item.value);
        case IT_INTEGER:
            return item.undefined ? std::wstring() : FormatNumber(kIntegerFormat, std::get<int>(item.value));
        case IT_DOUBLE:
            return item.undefined ? std::wstring()
                                  : FormatNumber(kDoubleFormat, std::get<double>(item.value));
        default:
            return {};
    }
}

}  // namespace tavrin::propgrid
