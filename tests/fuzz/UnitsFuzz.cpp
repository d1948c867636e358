// Lengths as text: whatever is written reads as a length that is written the same way. The first byte gives
// units and precision; the others are read as a text, and the first eight of them as a number.
#include <cmath>
#include <cstring>

#include "tests/fuzz/Fuzz.h"
#include "units/LinearUnits.h"

using namespace tavrin::units;

namespace {

void WriteAndRead(double value, int units, int precision) {
    const std::optional<std::wstring> text = FormatLinear(value, units, precision);
    Require(text.has_value() == std::isfinite(value), "every finite length has a text");
    if (!text) {
        return;
    }
    Require(text->size() < 256, "a text is shorter than 256 characters");
    const std::optional<double> read = ParseLinear(*text);
    Require(read.has_value(), "what was written can be read");
    Require(FormatLinear(*read, units, precision) == text, "what was read is written the same way");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const int units = data[0] % 8 - 1;
    const int precision = data[0] / 8 % 12 - 1;
    const std::string_view bytes = Bytes(data + 1, size - 1);
    const std::wstring text = WideText(bytes);
    const CTightText tight(text);
    if (const std::optional<double> length = ParseLinear(std::wstring_view(tight.Get(), text.size()))) {
        Require(std::isfinite(*length), "a text that can be read is a finite length");
        WriteAndRead(*length, units, precision);
    }
    double value = 0.0;
    if (bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        WriteAndRead(value, units, precision);
    }
    return 0;
}
