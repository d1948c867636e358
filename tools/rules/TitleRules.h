// The item's title: the second line.
#pragma once

#include "tools/rules/RuleGroup.h"
#include "tools/texts/TextTable.h"

RuleList TitleRules();

class CTitleRules : public CRuleGroup {
public:
    // `texts` may be null: then what the title stands for is not known.
    CTitleRules(CFindingList& findings, const CTextTable* texts) : CRuleGroup(findings), m_texts(texts) {}
    void TakeLine(const SItemLine& line) override;
    void Finish() override;

private:
    void CheckForm(const SItemLine& line);
    void CheckPlaceholder(const SItemLine& line, int number);
    void CheckLength(const SItemLine& line, int number);

    const CTextTable* m_texts;
    std::size_t m_lineCount = 0;
};
