#include "lisp/Arguments.h"

#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace tavrin::lisp {

namespace {

std::wstring CountText(int least, int most) {
    const std::wstring fewest = std::to_wstring(least);
    if (most == kAnyCount) {
        return L"at least " + fewest + (least == 1 ? L" argument" : L" arguments");
    }
    if (most == 0) {
        return L"no arguments";
    }
    const std::wstring range = least == most ? fewest : fewest + L" to " + std::to_wstring(most);
    return range + (least == 1 && most == 1 ? L" argument" : L" arguments");
}

}  // namespace

std::int32_t CArguments::Integer(std::size_t index) const {
    if (m_values[index].Type() != VT_INTEGER) {
        Refuse(index, L"a whole number");
    }
    return m_values[index].AsInteger();
}

double CArguments::Number(std::size_t index) const {
    if (!IsNumber(m_values[index])) {
        Refuse(index, L"a number");
    }
    return ToReal(m_values[index]);
}

const std::wstring& CArguments::Text(std::size_t index) const {
    if (m_values[index].Type() != VT_STRING) {
        Refuse(index, L"a string");
    }
    return m_values[index].AsString();
}

const std::wstring& CArguments::Symbol(std::size_t index) const {
    if (m_values[index].Type() != VT_SYMBOL) {
        Refuse(index, L"a symbol");
    }
    return m_values[index].AsSymbol();
}

std::vector<CValue> CArguments::List(std::size_t index) const {
    std::vector<CValue> elements;
    const CValue* rest = &m_values[index];
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        elements.push_back(rest->Car());
    }
    if (!rest->IsNil()) {
        Refuse(index, L"a list");
    }
    m_evaluator.Step(elements.size());
    return elements;
}

LispPoint CArguments::Point(std::size_t index) const {
    const auto point = ToPoint(m_values[index]);
    if (!point) {
        Refuse(index, L"a point, a list of two or three numbers,");
    }
    return *point;
}

void CArguments::WithFile(std::size_t index, const std::function<void(CLispFile&)>& use) const {
    if (m_values[index].Type() != VT_FILE) {
        Refuse(index, L"an open file");
    }
    try {
        use(m_values[index].AsFile());
    } catch (const CLispError& error) {
        Fail(error.Text());
    }
}

void CArguments::Refuse(std::size_t index, const wchar_t* needed) const {
    throw CLispError(Function() + L" needs " + needed + L" as argument " + std::to_wstring(index + 1) +
                     L", not " + Excerpt(m_values[index]));
}

void CArguments::Fail(const std::wstring& what) const {
    throw CLispError(Function() + L": " + what);
}

bool IsNumber(const CValue& value) {
    return value.Type() == VT_INTEGER || value.Type() == VT_REAL;
}

double ToReal(const CValue& number) {
    return number.Type() == VT_INTEGER ? number.AsInteger() : number.AsReal();
}

std::optional<LispPoint> ToPoint(const CValue& list) {
    double coordinates[3] = {};
    std::size_t count = 0;
    const CValue* rest = &list;
    for (; rest->Type() == VT_PAIR && count < 3; rest = &rest->Cdr()) {
        if (!IsNumber(rest->Car())) {
            return std::nullopt;
        }
        coordinates[count++] = ToReal(rest->Car());
    }
    if (!rest->IsNil() || count < 2) {
        return std::nullopt;
    }
    return LispPoint{coordinates[0], coordinates[1], coordinates[2]};
}

NativeFunction TakeArguments(CEvaluator& evaluator, std::wstring name, int least, int most,
                             std::function<LispResult(const CArguments&)> run) {
    return [&evaluator, name = std::move(name), least, most,
            run = std::move(run)](std::span<const CValue> values) {
        const bool fits = values.size() >= static_cast<std::size_t>(least) &&
                          (most == kAnyCount || values.size() <= static_cast<std::size_t>(most));
        if (!fits) {
            throw CLispError(name + L" takes " + CountText(least, most) + L", not " +
                             std::to_wstring(values.size()));
        }
        return run(CArguments(evaluator, name, values));
    };
}

}  // namespace tavrin::lisp
