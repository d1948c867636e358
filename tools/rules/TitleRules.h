// The item's title: the second line.
#pragma once

#include "tools/rules/RuleGroup.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

RuleList TitleRules();

class CTitleRules : public CRuleGroup {
public:
    // `texts` may be null: then the texts of placeholders are unknown.
    CTitleRules(CFindingList& findings, const CTextTable* texts) : CRuleGroup(findings), m_texts(texts) {}
    void TakeLine(const ItemLine& line) override;
    void Finish() override;

private:
    void CheckForm(const ItemLine& line);
    void CheckPlaceholder(const ItemLine& line, int number);
    void CheckLength(const ItemLine& line, int number);

    const CTextTable* m_texts;
    std::size_t m_lineCount = 0;
};

}  // namespace tavrin::tools
