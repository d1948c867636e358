// Lines inside a block that were meant as parameters and are none.
#pragma once

#include "tools/rules/RuleGroup.h"

RuleList LineRules();

class CLineRules : public CRuleGroup {
public:
    // In a working file assignments are in order: OK has left them there.
    CLineRules(CFindingList& findings, bool isWorkingFile)
        : CRuleGroup(findings), m_isWorkingFile(isWorkingFile) {}
    void TakeLine(const SItemLine& line) override;

private:
    bool m_isWorkingFile;
};

// Whether a line has the form that OK gives the lines of a working file: "#1 = 900", "$7 = 1".
bool IsAssignment(const std::wstring& line);
