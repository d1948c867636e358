// Type letters and values of parameters.
#pragma once

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList ValueRules();

class CValueRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const ItemLine& line) override;

private:
    bool ReportNoNumber(const ItemLine& line, const std::wstring& value, std::size_t numberEnd);
    void CheckNumber(const ItemLine& line, std::size_t start, std::size_t length, double value);
};

}  // namespace tavrin::tools
