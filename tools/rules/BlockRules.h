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
    void ReportMisspelt(const ItemLine& line, bool opening);

    bool m_isWorkingFile;
    std::optional<Finding> m_unclosed;  // to report if the open block is never closed
    std::optional<Finding> m_empty;     // to report if the open block has no parameter
    bool m_hasBlock = false;            // true also for a block whose opening line is misspelt
    bool m_openingWasMisspelt = false;  // the lines that follow were meant to be inside a block
    bool m_closingWasMisspelt = false;  // the lines that follow were meant to be outside
};

}  // namespace tavrin::tools
