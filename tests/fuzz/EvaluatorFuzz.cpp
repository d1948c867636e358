// The evaluator: every script ends with a value, an error with a text, or an exit, and afterwards the
// evaluator still works.
#include "devhost/drawlisp/DrawFunctions.h"
#include "encoding/Encoding.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"
#include "tests/fuzz/Fuzz.h"

using namespace devhost;
using namespace tavrin::lisp;

namespace {

constexpr int kMaxPolls = 5;  // of some thousand steps each
constexpr std::size_t kStack = std::size_t{512} * 1024;

// Stops scripts that run too long.
class CImpatientHost : public CNullLispHost {
public:
    bool IsEscapePressed() override { return ++m_polls % kMaxPolls == 0; }

private:
    int m_polls = 0;
};

void RunToItsEnd(CEvaluator& evaluator, std::string_view script) {
    try {
        if (const LispResult result =
                evaluator.Run(ReadText(tavrin::encoding::DecodeUtf8OrWindows1252(script)))) {
            Print(*result);
        }
    } catch (const CLispError& error) {
        Require(!error.Text().empty(), "an error has a text");
    } catch (const LispExit&) {
        // The script called (exit).
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CImpatientHost host;
    CDrawing drawing;
    CEvaluator evaluator(host, kStack);
    DefineDrawFunctions(evaluator, drawing);
    RunToItsEnd(evaluator, Bytes(data, size));
    const LispResult seven = evaluator.Run(ReadText(L"7"));
    Require(seven && seven->Type() == VT_INTEGER && seven->AsInteger() == 7, "the evaluator still works");
    return 0;
}
