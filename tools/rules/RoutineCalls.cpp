#include "tools/rules/RoutineCalls.h"

#include <map>
#include <optional>
#include <utility>

#include "itemdlg/TemplateText.h"
#include "lisp/Reader.h"

namespace tavrin::tools {

namespace {

using lisp::CValue;

constexpr int kFlatOnly = 2;  // the argument of tavrinselmask

// (item-choose ITEM VARIABLE), until all of the routine is known.
struct PendingChoice {
    std::size_t call = 0;  // its index
    std::wstring item;
    std::wstring variable;
};

// Visits the expressions in the order of the source, which is the order of the reader's text ranges.
class CRoutineReader {
public:
    explicit CRoutineReader(std::wstring_view routine) : m_reader(routine) {}

    RoutineContents Run() {
        while (const std::optional<CValue> expression = m_reader.Read()) {
            Visit(*expression);
        }
        for (const PendingChoice& choice : m_pending) {
            m_contents.calls[choice.call].names = WithItem(choice.item, m_lists[choice.variable]);
        }
        return std::move(m_contents);
    }

private:
    // The reader limits the nesting depth, and with it the recursion.
    void Visit(const CValue& value) {
        if (value.Type() == lisp::VT_STRING) {
            ++m_textCount;
        }
        if (value.Type() != lisp::VT_PAIR) {
            return;
        }
        const CValue& function = value.Car();
        const std::size_t call = m_contents.calls.size();
        const bool isChoice = function.IsSymbol(L"TAVRINSELMASK") || function.IsSymbol(L"ITEM-CHOOSE");
        if (isChoice || function.IsSymbol(L"TAVRINPREVMASK")) {
            m_contents.calls.push_back({isChoice, false, {}});
        }
        CValue before;  // the argument in front
        CValue rest = value;
        for (int index = 0; rest.Type() == lisp::VT_PAIR; rest = rest.Cdr(), ++index) {
            if (index > 0) {
                TakeArgument(function, call, index, before, rest.Car());
            }
            before = rest.Car();
            Visit(rest.Car());
        }
        Visit(rest);  // the tail of a dotted pair
    }

    void TakeArgument(const CValue& function, std::size_t call, int index, const CValue& before,
                      const CValue& argument) {
        if (function.IsSymbol(L"TAVRINSELMASK")) {
            TakeChoiceArgument(m_contents.calls[call], index, argument);
        } else if (function.IsSymbol(L"TAVRINPREVMASK")) {
            TakeName(m_contents.calls[call], argument);
        } else if (function.IsSymbol(L"ITEM-CHOOSE") && index == 2) {
            TakeVariants(call, before, argument);
        } else if (function.IsSymbol(L"SETQ") && index % 2 == 0 && before.Type() == lisp::VT_SYMBOL) {
            m_lists[before.AsSymbol()] = LiteralTexts(argument);
        } else if (function.IsSymbol(L"LOAD") && index == 1 && argument.Type() == lisp::VT_STRING) {
            m_contents.loads.push_back(argument.AsString());
        } else if ((function.IsSymbol(L"RES-TEXT") || function.IsSymbol(L"ITEM-WORDS")) && index == 1) {
            TakeTextNumber(argument);
        }
    }

    // (tavrinselmask CAPTION FLAT-ONLY NAME...)
    void TakeChoiceArgument(RoutineCall& call, int index, const CValue& argument) const {
        if (index == kFlatOnly) {
            call.isFlatOnly = argument.Type() == lisp::VT_INTEGER && argument.AsInteger() != 0;
        } else if (index > kFlatOnly) {
            TakeName(call, argument);
        }
    }

    void TakeName(RoutineCall& call, const CValue& argument) const {
        if (argument.Type() == lisp::VT_STRING) {
            call.names.push_back(NameAt(argument, m_textCount));
        }
    }

    void TakeVariants(std::size_t call, const CValue& item, const CValue& variants) {
        if (item.Type() != lisp::VT_STRING) {
            return;
        }
        if (variants.Type() == lisp::VT_SYMBOL) {
            m_pending.push_back({call, item.AsString(), variants.AsSymbol()});
        } else {
            m_contents.calls[call].names = WithItem(item.AsString(), LiteralTexts(variants));
        }
    }

    void TakeTextNumber(const CValue& argument) {
        if (argument.Type() == lisp::VT_INTEGER && argument.AsInteger() > 0 &&
            argument.AsInteger() <= itemdlg::kHighestTextNumber) {
            m_contents.textNumbers.push_back(static_cast<unsigned>(argument.AsInteger()));
        }
    }

    RoutineName NameAt(const CValue& text, std::size_t index) const {
        const lisp::CReader::TextRange& range = m_reader.TextRanges()[index];
        return {text.AsString(), range.start, range.length};
    }

    // The texts of '("a" "b") or (list "a" "b"), an argument that is visited next; empty for anything else.
    std::vector<RoutineName> LiteralTexts(const CValue& list) const {
        if (list.Type() != lisp::VT_PAIR) {
            return {};
        }
        const bool isQuoted = list.Car().IsSymbol(L"QUOTE") && list.Cdr().Type() == lisp::VT_PAIR;
        if (!isQuoted && !list.Car().IsSymbol(L"LIST")) {
            return {};
        }
        std::vector<RoutineName> names;
        CValue rest = isQuoted ? list.Cdr().Car() : list.Cdr();
        for (; rest.Type() == lisp::VT_PAIR; rest = rest.Cdr()) {
            if (rest.Car().Type() != lisp::VT_STRING) {
                return {};
            }
            names.push_back(NameAt(rest.Car(), m_textCount + names.size()));
        }
        return names;
    }

    static std::vector<RoutineName> WithItem(const std::wstring& item, std::vector<RoutineName> variants) {
        for (RoutineName& variant : variants) {
            variant.text = item + L'_' + variant.text;
        }
        return variants;
    }

    lisp::CReader m_reader;
    std::size_t m_textCount = 0;  // visited so far
    RoutineContents m_contents;
    std::map<std::wstring, std::vector<RoutineName>> m_lists;  // by the variable that setq gives them
    std::vector<PendingChoice> m_pending;
};

}  // namespace

RoutineContents ReadRoutine(std::wstring_view routine) {
    return CRoutineReader(routine).Run();
}

}  // namespace tavrin::tools
