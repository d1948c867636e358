#include "tools/rules/RoutineCalls.h"

#include <optional>
#include <utility>

#include "lisp/Reader.h"

namespace tavrin::tools {

namespace {

constexpr std::wstring_view kChoice = L"TAVRINSELMASK";
constexpr std::wstring_view kPreview = L"TAVRINPREVMASK";

// Visits the expressions in the order of the source, which is the order of the reader's text ranges.
class CCallCollector {
public:
    explicit CCallCollector(std::wstring_view routine) : m_reader(routine) {}

    std::vector<RoutineCall> Run() {
        while (const std::optional<lisp::CValue> expression = m_reader.Read()) {
            Visit(*expression);
        }
        return std::move(m_calls);
    }

private:
    // The reader limits the nesting depth, and with it the recursion.
    void Visit(const lisp::CValue& value) {
        if (value.Type() == lisp::VT_STRING) {
            ++m_textCount;
        }
        if (value.Type() != lisp::VT_PAIR) {
            return;
        }
        const bool isChoice = value.Car().IsSymbol(kChoice);
        const bool isCall = isChoice || value.Car().IsSymbol(kPreview);
        const std::size_t call = m_calls.size();
        if (isCall) {
            m_calls.push_back({isChoice, false, {}});
        }
        lisp::CValue rest = value;
        for (int index = 0; rest.Type() == lisp::VT_PAIR; rest = rest.Cdr(), ++index) {
            if (isCall) {
                TakeArgument(m_calls[call], index, rest.Car());
            }
            Visit(rest.Car());
        }
        Visit(rest);  // the tail of a dotted pair
    }

    // (tavrinselmask CAPTION FLAT-ONLY NAME...), (tavrinprevmask NAME)
    void TakeArgument(RoutineCall& call, int index, const lisp::CValue& argument) const {
        constexpr int kFlatOnly = 2;
        if (call.isChoice && index == kFlatOnly) {
            call.isFlatOnly = argument.Type() == lisp::VT_INTEGER && argument.AsInteger() != 0;
        } else if (argument.Type() == lisp::VT_STRING && (!call.isChoice || index > kFlatOnly)) {
            const lisp::CReader::TextRange& range = m_reader.TextRanges()[m_textCount];
            call.names.push_back({argument.AsString(), range.start, range.length});
        }
    }

    lisp::CReader m_reader;
    std::size_t m_textCount = 0;  // visited so far
    std::vector<RoutineCall> m_calls;
};

}  // namespace

std::vector<RoutineCall> FindRoutineCalls(std::wstring_view routine) {
    return CCallCollector(routine).Run();
}

}  // namespace tavrin::tools
