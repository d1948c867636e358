// The numbers of parameters.
#pragma once

#include "tools/rules/RuleGroup.h"
#include "tools/rules/TextIndex.h"

RuleList NumberRules();

class CNumberRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const SItemLine& line) override;

private:
    CTextIndex m_plain;     // numbers without leading zeros, mostly all
    CTextIndex m_padded;    // those with
    CTextIndex m_stripped;  // the same without
};
