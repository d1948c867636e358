// The numbers of parameters.
#pragma once

#include "tools/rules/RuleGroup.h"
#include "tools/rules/TextIndex.h"

namespace tavrin::tools {

RuleList NumberRules();

class CNumberRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const ItemLine& line) override;

private:
    CTextIndex m_plain;     // numbers without leading zeros: usually all
    CTextIndex m_padded;    // numbers with leading zeros
    CTextIndex m_stripped;  // the same without the zeros
};

}  // namespace tavrin::tools
