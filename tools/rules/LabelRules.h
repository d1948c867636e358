// The labels of parameters: what becomes of them in the grid and when they are written back.
#pragma once

#include <string>
#include <vector>

#include "tools/rules/RuleGroup.h"
#include "tools/rules/TextIndex.h"
#include "tools/texts/TextTable.h"

RuleList LabelRules();

class CLabelRules : public CRuleGroup {
public:
    // `texts` may be null: then placeholders stand for themselves.
    CLabelRules(CFindingList& findings, const CTextTable* texts);
    void TakeLine(const SItemLine& line) override;

private:
    // What all languages make of one label.
    struct SShownLabel {
        bool isEmpty = false;         // in one of them
        bool isMarkedByText = false;  // in one of them
        std::size_t length = 0;       // in the one where it is longest; 0 when that is not known
        std::string twin;             // says which line has the same; empty when none has
    };

    void CheckForm(const SItemLine& line);
    void CheckPlaceholder(const SItemLine& line, int number);
    void CheckMark(const SItemLine& line);
    void CheckRewritten(const SItemLine& line);
    void CheckShown(const SItemLine& line);
    void ReportShown(const SItemLine& line, const SShownLabel& shown);
    tavrin::itemdlg::ParameterRow ShownRow(const SItemLine& line, std::size_t language) const;
    void ReportAtLabel(const SRule& rule, const SItemLine& line, std::string message);

    const CTextTable* m_texts;
    std::vector<CTextIndex> m_shown;  // labels by language; a single one without texts
};
