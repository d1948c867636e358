// Parameter blocks: the lines that open and close them, and parameters outside.
#pragma once

#include <optional>

#include "tools/rules/RuleGroup.h"

RuleList BlockRules();

class CBlockRules : public CRuleGroup {
public:
    // A block of a working file in which OK has left assignments is not empty.
    CBlockRules(CFindingList& findings, bool isWorkingFile)
        : CRuleGroup(findings), m_isWorkingFile(isWorkingFile) {}
    void TakeLine(const SItemLine& line) override;
    void Finish() override;

private:
    void TakeOutside(const SItemLine& line);
    void TakeInside(const SItemLine& line);
    bool ReportMisspelt(const SItemLine& line, bool opening);

    bool m_isWorkingFile;
    std::optional<SFinding> m_unclosed;  // what is to be said if the open block stays so
    std::optional<SFinding> m_empty;     // and if it turns out to hold no parameter
    bool m_hasBlock = false;             // also one whose opening line is misspelt
    bool m_openingWasMisspelt = false;   // what follows was meant to be inside a block,
    bool m_closingWasMisspelt = false;   // or outside
};
