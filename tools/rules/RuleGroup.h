// A group of rules that checks a file line by line and adds its findings to a list.
#pragma once

#include <span>

#include "tools/rules/FindingList.h"
#include "tools/rules/ItemLine.h"

namespace tavrin::tools {

class CRuleGroup {
public:
    explicit CRuleGroup(CFindingList& findings) : m_findings(findings) {}
    virtual ~CRuleGroup() = default;
    CRuleGroup(const CRuleGroup&) = delete;
    CRuleGroup& operator=(const CRuleGroup&) = delete;

    virtual void TakeLine(const ItemLine& line) = 0;
    // Called after the last line.
    virtual void Finish() {}

protected:
    CFindingList& Findings() { return m_findings; }

private:
    CFindingList& m_findings;
};

using RuleList = std::span<const Rule* const>;

}  // namespace tavrin::tools
