#include "Value.h"

#include <algorithm>
#include <vector>

class CPair {
public:
    CPair(CValue car, CValue cdr) : m_car(std::move(car)), m_cdr(std::move(cdr)) {}
    ~CPair();
    CPair(const CPair&) = delete;
    CPair& operator=(const CPair&) = delete;

    const CValue& Car() const { return m_car; }
    const CValue& Cdr() const { return m_cdr; }

private:
    void MovePairsTo(std::vector<CValue::CPairPtr>& pairs);

    CValue m_car;
    CValue m_cdr;
};

// Pairs that nothing else holds are let go in a loop: the members' own destructors would recurse once per
// element of a list and run out of stack on a long one.
CPair::~CPair() {
    std::vector<CValue::CPairPtr> pending;
    MovePairsTo(pending);
    while (!pending.empty()) {
        const CValue::CPairPtr pair = std::move(pending.back());
        pending.pop_back();
        if (pair.use_count() == 1)
            pair->MovePairsTo(pending);
    }
}

void CPair::MovePairsTo(std::vector<CValue::CPairPtr>& pairs) {
    for (CValue* value : {&m_car, &m_cdr})
        if (value->Type() == VT_PAIR)
            pairs.push_back(std::move(std::get<VT_PAIR>(value->m_data)));
}

CValue CValue::Integer(std::int32_t number) {
    CValue value;
    value.m_data = number;
    return value;
}

CValue CValue::Real(double number) {
    CValue value;
    value.m_data = number;
    return value;
}

CValue CValue::String(std::wstring text) {
    CValue value;
    value.m_data = SString{std::make_shared<const std::wstring>(std::move(text))};
    return value;
}

CValue CValue::Symbol(std::wstring_view name) {
    CValue value;
    std::wstring upperCase = UpperCase(name);
    if (upperCase != L"NIL")
        value.m_data = SSymbol{std::make_shared<const std::wstring>(std::move(upperCase))};
    return value;
}

CValue CValue::Pair(CValue car, CValue cdr) {
    CValue value;
    value.m_data = std::make_shared<CPair>(std::move(car), std::move(cdr));
    return value;
}

CValue CValue::List(std::span<const CValue> elements, CValue tail) {
    for (std::size_t i = elements.size(); i-- > 0;)
        tail = Pair(elements[i], std::move(tail));
    return tail;
}

CValue CValue::True() {
    return Symbol(L"T");
}

bool CValue::IsSymbol(std::wstring_view upperCaseName) const {
    return Type() == VT_SYMBOL && AsSymbol() == upperCaseName;
}

const CValue& CValue::Car() const {
    return std::get<VT_PAIR>(m_data)->Car();
}

const CValue& CValue::Cdr() const {
    return std::get<VT_PAIR>(m_data)->Cdr();
}

std::wstring UpperCase(std::wstring_view name) {
    std::wstring result(name);
    for (wchar_t& c : result)
        if (c >= L'a' && c <= L'z')
            c = wchar_t(c - L'a' + L'A');
    return result;
}
