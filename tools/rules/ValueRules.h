// Type letters and values of parameters.
#pragma once

#include "tools/rules/RuleGroup.h"

RuleList ValueRules();

class CValueRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const SItemLine& line) override;

private:
    bool ReportNoNumber(const SItemLine& line, const std::wstring& value, std::size_t numberEnd);
    void CheckNumber(const SItemLine& line, std::size_t start, std::size_t length, double value);
};
