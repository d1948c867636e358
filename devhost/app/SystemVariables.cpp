#include "devhost/app/SystemVariables.h"

#include "devhost/Libraries.h"
#include "lisp/LispError.h"
#include "lisp/Printer.h"
#include "units/LinearUnits.h"

namespace devhost {

void CSystemVariables::SetLinear(LinearFormat linear) {
    m_linear = linear;
    if (m_onChanged) {
        m_onChanged(linear);
    }
}

lisp::CValue CSystemVariables::Get(const std::wstring& name) const {
    if (name == L"LUNITS") {
        return lisp::CValue::Integer(m_linear.lunits);
    }
    if (name == L"LUPREC") {
        return lisp::CValue::Integer(m_linear.luprec);
    }
    return {};
}

void CSystemVariables::Set(const std::wstring& name, const lisp::CValue& value) {
    const bool isUnits = name == L"LUNITS";
    if (!isUnits && name != L"LUPREC") {
        throw lisp::CLispError(L"SETVAR: there is no system variable " + name + L": use LUNITS or LUPREC");
    }
    const int lowest = isUnits ? units::LU_SCIENTIFIC : 0;
    const int highest = isUnits ? units::LU_FRACTIONAL : units::kMaxLinearPrecision;
    if (value.Type() != lisp::VT_INTEGER || value.AsInteger() < lowest || value.AsInteger() > highest) {
        throw lisp::CLispError(L"SETVAR: " + name + L" takes a whole number from " + std::to_wstring(lowest) +
                               L" to " + std::to_wstring(highest) + L", not " + lisp::Excerpt(value));
    }
    LinearFormat linear = m_linear;
    (isUnits ? linear.lunits : linear.luprec) = value.AsInteger();
    SetLinear(linear);
}

}  // namespace devhost
