// The labels of parameters: how the grid shows them and how OK writes them.
#pragma once

#include <string>
#include <vector>

#include "tools/rules/RuleGroup.h"
#include "tools/rules/TextIndex.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

RuleList LabelRules();

class CLabelRules : public CRuleGroup {
public:
    // `texts` may be null: then placeholders are shown as they are.
    CLabelRules(CFindingList& findings, const CTextTable* texts);
    void TakeLine(const ItemLine& line) override;

private:
    // One label in all languages.
    struct ShownLabel {
        bool isEmpty = false;         // in one of them
        bool isMarkedByText = false;  // in one of them
        std::size_t length = 0;       // the maximum of all languages; 0 when unknown
        std::string twin;             // names the line with the same label; empty if there is none
    };

    void CheckForm(const ItemLine& line);
    void CheckPlaceholder(const ItemLine& line, int number);
    void CheckMark(const ItemLine& line);
    void CheckRewritten(const ItemLine& line);
    void CheckShown(const ItemLine& line);
    void ReportShown(const ItemLine& line, const ShownLabel& shown);
    itemdlg::ParameterRow ShownRow(const ItemLine& line, std::size_t language) const;
    void ReportAtLabel(const Rule& rule, const ItemLine& line, std::string message);

    const CTextTable* m_texts;
    std::vector<CTextIndex> m_shown;  // labels by language; a single one without texts
};

}  // namespace tavrin::tools
