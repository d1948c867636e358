// LISP that is evaluated: whatever a script says, it ends in a value, a mistake with a text, or an exit, and
// afterwards the evaluator goes on as if nothing had happened.
#include "devhost/drawlisp/DrawFunctions.h"
#include "encoding/Encoding.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"
#include "tests/fuzz/Fuzz.h"

namespace {

constexpr std::size_t kSteps = 20'000;
constexpr std::size_t kStack = std::size_t{512} * 1024;

void RunToItsEnd(CEvaluator& evaluator, std::string_view script) {
    try {
        if (const CLispResult result =
                evaluator.Run(ReadText(tavrin::encoding::DecodeUtf8OrWindows1252(script)))) {
            Print(*result);
        }
    } catch (const CLispError& mistake) {
        Require(!mistake.Text().empty(), "a mistake is told");
    } catch (const SLispExit&) {
        // As the script wanted it.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CNullLispHost host;
    CDrawing drawing;
    CEvaluator evaluator(host, kStack);
    DefineDrawFunctions(evaluator, drawing);
    evaluator.SetStepLimit(kSteps);
    RunToItsEnd(evaluator, Bytes(data, size));
    const CLispResult seven = evaluator.Run(ReadText(L"7"));
    Require(seven && seven->Type() == VT_INTEGER && seven->AsInteger() == 7, "the evaluator goes on");
    return 0;
}
