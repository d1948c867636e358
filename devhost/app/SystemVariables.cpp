#include "devhost/app/SystemVariables.h"

#include "lisp/LispError.h"
#include "lisp/Printer.h"
#include "units/LinearUnits.h"

void CSystemVariables::SetLinear(SLinearFormat linear) {
    m_linear = linear;
    if (m_onChanged) {
        m_onChanged(linear);
    }
}

CValue CSystemVariables::Get(const std::wstring& name) const {
    if (name == L"LUNITS") {
        return CValue::Integer(m_linear.lunits);
    }
    if (name == L"LUPREC") {
        return CValue::Integer(m_linear.luprec);
    }
    return {};
}

void CSystemVariables::Set(const std::wstring& name, const CValue& value) {
    const bool isUnits = name == L"LUNITS";
    if (!isUnits && name != L"LUPREC") {
        throw CLispError(L"SETVAR: there is no system variable " + name + L": LUNITS and LUPREC are known");
    }
    const int lowest = isUnits ? LU_SCIENTIFIC : 0;
    const int highest = isUnits ? LU_FRACTIONAL : kMaxLinearPrecision;
    if (value.Type() != VT_INTEGER || value.AsInteger() < lowest || value.AsInteger() > highest) {
        throw CLispError(L"SETVAR: " + name + L" takes a whole number from " + std::to_wstring(lowest) +
                         L" to " + std::to_wstring(highest) + L", not " + Excerpt(value));
    }
    SLinearFormat linear = m_linear;
    (isUnits ? linear.lunits : linear.luprec) = value.AsInteger();
    SetLinear(linear);
}
