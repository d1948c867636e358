#include "tools/rules/RoutineCalls.h"

#include <optional>
#include <utility>

#include "lisp/Reader.h"

namespace {

constexpr std::wstring_view kChoice = L"TAVRINSELMASK";
constexpr std::wstring_view kPreview = L"TAVRINPREVMASK";

// Walks over what was read in the order in which it was written, so that texts are met as the reader met
// them.
class CCallCollector {
public:
    explicit CCallCollector(std::wstring_view routine) : m_reader(routine) {}

    std::vector<SRoutineCall> Run() {
        while (const std::optional<CValue> expression = m_reader.Read()) {
            Visit(*expression);
        }
        return std::move(m_calls);
    }

private:
    // The reader bounds how deep a text may be nested, and with it the recursion.
    void Visit(const CValue& value) {
        if (value.Type() == VT_STRING) {
            ++m_textCount;
        }
        if (value.Type() != VT_PAIR) {
            return;
        }
        const bool isChoice = value.Car().IsSymbol(kChoice);
        const bool isCall = isChoice || value.Car().IsSymbol(kPreview);
        const std::size_t call = m_calls.size();
        if (isCall) {
            m_calls.push_back({isChoice, false, {}});
        }
        CValue rest = value;
        for (int place = 0; rest.Type() == VT_PAIR; rest = rest.Cdr(), ++place) {
            if (isCall) {
                TakeArgument(m_calls[call], place, rest.Car());
            }
            Visit(rest.Car());
        }
        Visit(rest);  // behind a dot
    }

    // (tavrinselmask CAPTION FLAT-ONLY NAME...), (tavrinprevmask NAME)
    void TakeArgument(SRoutineCall& call, int place, const CValue& argument) const {
        constexpr int kFlatOnly = 2;
        if (call.isChoice && place == kFlatOnly) {
            call.isFlatOnly = argument.Type() == VT_INTEGER && argument.AsInteger() != 0;
        } else if (argument.Type() == VT_STRING && (!call.isChoice || place > kFlatOnly)) {
            const CReader::SPlace& where = m_reader.TextPlaces()[m_textCount];
            call.names.push_back({argument.AsString(), where.start, where.length});
        }
    }

    CReader m_reader;
    std::size_t m_textCount = 0;  // that were met
    std::vector<SRoutineCall> m_calls;
};

}  // namespace

std::vector<SRoutineCall> FindRoutineCalls(std::wstring_view routine) {
    return CCallCollector(routine).Run();
}
