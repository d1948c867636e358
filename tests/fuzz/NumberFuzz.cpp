// The numbers of an item's files: reading beside the C library's, and what is written reads as it was.
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "itemdlg/NumberText.h"
#include "tests/fuzz/Fuzz.h"

using namespace tavrin::itemdlg;

namespace {

bool Same(double one, double other) {
    return one == other && std::signbit(one) == std::signbit(other);
}

// Texts that the C library reads in another way than we do: they begin with no digit, or a hexadecimal one.
bool HasNotationOfItsOwn(const std::string& text) {
    return text.find_first_of("nNxX") != std::string::npos;
}

void ReadText(const std::string& text) {
    const std::wstring wide(text.begin(), text.end());
    const CTightText tight(wide);
    const double value = DecimalValue(std::wstring_view(tight.Get(), wide.size()));
    if (!HasNotationOfItsOwn(text)) {
        // A minus with nothing behind it is no number; it is plain zero on both sides.
        Require(Same(value, std::strtod(text.c_str(), nullptr)), "a decimal text has the C library's value");
    }
    const double floor = std::floor(value);
    const int whole = FloorToInt(value);
    Require(whole == floor || std::abs(floor) > 2147483647.0, "the floor is the C library's");
    const long leading = std::strtol(text.c_str(), nullptr, 10);
    const long clamped = leading > 2147483647L    ? 2147483647L
                         : leading < -2147483648L ? -2147483648L
                                                  : leading;
    Require(LeadingInt(wide) == clamped, "a whole number is the C library's");
}

void WriteValue(double value) {
    if (!std::isfinite(value)) {
        GeneralText(value);
        return;
    }
    const std::wstring text = GeneralText(value);
    char expected[64];
    std::snprintf(expected, sizeof expected, "%g", value);
    Require(text == std::wstring(expected, expected + std::strlen(expected)), "a real is written as by %g");
    Require(GeneralText(DecimalValue(text)) == text, "a real that was written reads as the same text");
    const int whole = FloorToInt(value);
    Require(LeadingInt(IntText(whole)) == whole, "a whole number that was written reads as it was");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(Bytes(data, size));
    text.resize(std::strlen(text.c_str()));
    ReadText(text);
    double value = 0.0;
    if (size >= sizeof value) {
        std::memcpy(&value, data, sizeof value);
        WriteValue(value);
    }
    return 0;
}
