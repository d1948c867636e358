#include "RoutineCalls.h"

#include "Reader.h"

namespace {

constexpr std::wstring_view kChoice = L"TAVRINSELMASK";
constexpr std::wstring_view kPreview = L"TAVRINPREVMASK";

bool IsNumberOtherThanZero(const CValue& value) {
    return value.Type() == VT_INTEGER && value.AsInteger() != 0;
}

SRoutineCall CallOf(std::wstring_view function, int line, CValue arguments) {
    SRoutineCall call;
    call.line = line;
    call.isChoice = function == kChoice;
    // (tavrinselmask CAPTION FLAT-ONLY NAME...)
    for (int skipped = 0; call.isChoice && skipped < 2 && arguments.Type() == VT_PAIR; ++skipped) {
        call.isFlatOnly = skipped == 1 && IsNumberOtherThanZero(arguments.Car());
        arguments = arguments.Cdr();
    }
    for (; arguments.Type() == VT_PAIR; arguments = arguments.Cdr()) {
        if (arguments.Car().Type() == VT_STRING) {
            call.names.push_back(arguments.Car().AsString());
        }
    }
    return call;
}

// The reader bounds how deep a text may be nested, and with it the recursion.
void Collect(const CValue& value, std::vector<SRoutineCall>& calls) {
    if (value.Type() != VT_PAIR) {
        return;
    }
    for (const std::wstring_view function : {kChoice, kPreview}) {
        if (value.Car().IsSymbol(function)) {
            calls.push_back(CallOf(function, value.Line(), value.Cdr()));
        }
    }
    for (CValue rest = value; rest.Type() == VT_PAIR; rest = rest.Cdr()) {
        Collect(rest.Car(), calls);
    }
}

}  // namespace

std::vector<SRoutineCall> FindRoutineCalls(std::wstring_view routine) {
    std::vector<SRoutineCall> calls;
    for (CReader reader(routine); const auto expression = reader.Read();) {
        Collect(*expression, calls);
    }
    return calls;
}
