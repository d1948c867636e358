// Lines inside a block that were meant as parameters but are not.
#pragma once

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList LineRules();

class CLineRules : public CRuleGroup {
public:
    // In a working file assignments are OK's; the first of them is noted.
    CLineRules(CFindingList& findings, bool isWorkingFile)
        : CRuleGroup(findings), m_isWorkingFile(isWorkingFile) {}
    void TakeLine(const ItemLine& line) override;

private:
    bool m_isWorkingFile;
    bool m_isUsed = false;  // an assignment was seen
};

// Whether a line has the form of OK's assignments in a working file: "#1 = 900", "$7 = 1".
bool IsAssignment(const std::wstring& line);

}  // namespace tavrin::tools
