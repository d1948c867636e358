// Rules that belong together and look at a file's lines as they pass by. A group adds to the list that it is
// made with.
#pragma once

#include <span>

#include "tools/rules/FindingList.h"
#include "tools/rules/ItemLine.h"

class CRuleGroup {
public:
    explicit CRuleGroup(CFindingList& findings) : m_findings(findings) {}
    virtual ~CRuleGroup() = default;
    CRuleGroup(const CRuleGroup&) = delete;
    CRuleGroup& operator=(const CRuleGroup&) = delete;

    virtual void TakeLine(const SItemLine& line) = 0;
    // Behind the last line.
    virtual void Finish() {}

protected:
    CFindingList& Findings() { return m_findings; }

private:
    CFindingList& m_findings;
};

using RuleList = std::span<const SRule* const>;
