// LISP text: reading it ends in values or in an error with its position, and a value that is printed reads as
// it was.
#include <optional>
#include <vector>

#include "lisp/Printer.h"
#include "lisp/Reader.h"
#include "tests/fuzz/Fuzz.h"

using namespace tavrin::lisp;

namespace {

void PrintAndRead(const CValue& value) {
    const std::wstring text = Print(value);
    CReader reader(text);
    const std::optional<CValue> again = reader.Read();
    Require(again.has_value(), "what was printed is an expression");
    Require(Print(*again) == text, "what was printed reads as it was");
    Require(!reader.Read(), "one value is printed as one expression");
}

// All expressions up to the end or to the first mistake.
std::vector<CValue> ReadAll(const std::wstring& text) {
    std::vector<CValue> values;
    try {
        CReader reader(text);
        while (std::optional<CValue> value = reader.Read()) {
            values.push_back(*std::move(value));
        }
    } catch (const CLispError& mistake) {
        Require(!mistake.Text().empty(), "an error has a text");
    }
    return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const CValue& value : ReadAll(WideText(Bytes(data, size)))) {
        PrintAndRead(value);
    }
    return 0;
}
