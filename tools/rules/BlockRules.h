// Parameter blocks: the lines that open and close them, and parameters outside.
#pragma once

#include <optional>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList BlockRules();

class CBlockRules : public CRuleGroup {
public:
    // In a working file, a block with assignments is not empty.
    CBlockRules(CFindingList& findings, bool isWorkingFile)
        : CRuleGroup(findings), m_isWorkingFile(isWorkingFile) {}
    void TakeLine(const ItemLine& line) override;
    void Finish() override;

private:
    void TakeOutside(const ItemLine& line);
    void TakeInside(const ItemLine& line);
    bool ReportMisspelt(const ItemLine& line, bool opening);

    bool m_isWorkingFile;
    std::optional<Finding> m_unclosed;  // the finding if the open block is not closed
    std::optional<Finding> m_empty;     // the finding if it has no parameter
    bool m_hasBlock = false;            // also one whose opening line is misspelt
    bool m_openingWasMisspelt = false;  // what follows was meant to be inside a block,
    bool m_closingWasMisspelt = false;  // or outside
};

}  // namespace tavrin::tools
