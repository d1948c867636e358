// The values of items, one type for each class of storage, and what makes two of them the same.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <variant>

namespace tavrin::propgrid {

class ICustomItem;

// Red, green and blue from the lowest byte upwards: 0x00BBGGRR.
using Color = std::uint32_t;

inline constexpr int RedOf(Color color) {
    return static_cast<int>(color & 0xFF);
}
inline constexpr int GreenOf(Color color) {
    return static_cast<int>(color >> 8 & 0xFF);
}
inline constexpr int BlueOf(Color color) {
    return static_cast<int>(color >> 16 & 0xFF);
}

// The numbers are those of the system's date class.
enum EDateStatus : int { DS_VALID = 0, DS_INVALID = 1, DS_NULL = 2 };

// A date with its time of day, in days from 30 December 1899; the fraction counts away from midnight.
struct DateValue {
    double days = 0;
    EDateStatus status = DS_VALID;
    bool operator==(const DateValue&) const = default;
};

// A font's description, byte for byte as the system's LOGFONTW has it.
struct FontValue {
    static constexpr std::size_t kFaceSize = 32;

    std::int32_t height = 0;  // of the letters when negative, of the line when positive; pixels
    std::int32_t width = 0;
    std::int32_t escapement = 0;
    std::int32_t orientation = 0;
    std::int32_t weight = 0;
    std::uint8_t italic = 0;
    std::uint8_t underline = 0;
    std::uint8_t strikeOut = 0;
    std::uint8_t charSet = 0;
    std::uint8_t outPrecision = 0;
    std::uint8_t clipPrecision = 0;
    std::uint8_t quality = 0;
    std::uint8_t pitchAndFamily = 0;
    char16_t faceName[kFaceSize] = {};  // a name that fills its field has no terminating zero

    std::wstring GetFaceName() const;
};
static_assert(sizeof(FontValue) == 92 && std::has_unique_object_representations_v<FontValue>);

// Few items hold a font, so its bytes stand apart; they never change once made, and the current and the saved
// value may share them. Never null.
using FontPointer = std::shared_ptr<const FontValue>;

// By the kind of the item: int (Integer, Combo), double (Double), text (String, Text, File, Folder), bool
// (Boolean), date (Date, DateTime), colour, font, custom item.
using Value = std::variant<int, double, std::wstring, bool, DateValue, Color, FontPointer, ICustomItem*>;

// Exactly the same: dates with their status, fonts in all their bytes. Both hold the same type.
bool IsSameValue(const Value& a, const Value& b);

}  // namespace tavrin::propgrid
