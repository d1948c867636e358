// The system variables: LUNITS and LUPREC, the format of lengths.
#pragma once

#include <functional>
#include <string>

#include "lisp/Value.h"

struct SLinearFormat {
    int lunits;
    int luprec;
};

class CSystemVariables {
public:
    explicit CSystemVariables(SLinearFormat linear) : m_linear(linear) {}

    SLinearFormat Linear() const { return m_linear; }
    // Both in their ranges.
    void SetLinear(SLinearFormat linear);
    // Called after each change.
    void SetListener(std::function<void(SLinearFormat)> onChanged) { m_onChanged = std::move(onChanged); }

    // By the name in capitals; nil when there is none of that name.
    CValue Get(const std::wstring& name) const;
    // Throws CLispError, which names the variable, when there is none of that name or the value is not for
    // it.
    void Set(const std::wstring& name, const CValue& value);

private:
    SLinearFormat m_linear;
    std::function<void(SLinearFormat)> m_onChanged;
};
