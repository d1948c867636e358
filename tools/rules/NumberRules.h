// The numbers of parameters.
#pragma once

#include "RuleGroup.h"
#include "TextIndex.h"

RuleList NumberRules();

class CNumberRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const SItemLine& line) override;

private:
    CTextIndex m_numbers;
    CTextIndex m_significant;  // the same without their leading zeros
};
