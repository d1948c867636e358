// The system variables: LUNITS and LUPREC, the format of lengths.
#pragma once

#include <functional>
#include <string>

#include "devhost/Libraries.h"
#include "lisp/Value.h"

namespace devhost {

struct LinearFormat {
    int lunits;
    int luprec;
};

class CSystemVariables {
public:
    explicit CSystemVariables(LinearFormat linear) : m_linear(linear) {}

    LinearFormat Linear() const { return m_linear; }
    // Both values must be in their ranges.
    void SetLinear(LinearFormat linear);
    // Called after each change.
    void SetListener(std::function<void(LinearFormat)> onChanged) { m_onChanged = std::move(onChanged); }

    // By the name in capitals; nil for unknown names.
    lisp::CValue Get(const std::wstring& name) const;
    // Throws CLispError for unknown names and invalid values.
    void Set(const std::wstring& name, const lisp::CValue& value);

private:
    LinearFormat m_linear;
    std::function<void(LinearFormat)> m_onChanged;
};

}  // namespace devhost
