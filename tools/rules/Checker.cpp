#include "tools/rules/Checker.h"

#include "itemdlg/ItemFiles.h"
#include "tools/rules/BlockRules.h"
#include "tools/rules/ByteRules.h"
#include "tools/rules/LabelRules.h"
#include "tools/rules/LineRules.h"
#include "tools/rules/LineWalk.h"
#include "tools/rules/NumberRules.h"
#include "tools/rules/PairRules.h"
#include "tools/rules/TitleRules.h"
#include "tools/rules/ValueRules.h"

namespace tavrin::tools {

namespace {

// Collects the numbers of the texts that a file uses.
class CUsedTexts : public CRuleGroup {
public:
    CUsedTexts(CFindingList& findings, TextNumbers& numbers) : CRuleGroup(findings), m_numbers(numbers) {}

    void TakeLine(const ItemLine& line) override {
        if (line.parameter != nullptr) {
            Add(line.parameter->placeholder);
        } else if (line.index == itemdlg::kTitleLine) {
            Add(itemdlg::PlaceholderNumber(line.text));
        }
    }

private:
    void Add(int number) {
        if (number <= itemdlg::kHighestTextNumber) {
            m_numbers.set(static_cast<std::size_t>(number));
        }
    }

    TextNumbers& m_numbers;
};

}  // namespace

std::vector<Finding> CheckText(std::string_view bytes, const CheckContext& context) {
    CFindingList findings(context.file);
    CByteRules byteRules(findings);
    CTitleRules titleRules(findings, context.texts);
    CBlockRules blockRules(findings, context.isWorkingFile);
    CLineRules lineRules(findings, context.isWorkingFile);
    CNumberRules numberRules(findings);
    CLabelRules labelRules(findings, context.texts);
    CValueRules valueRules(findings);
    std::vector<CRuleGroup*> groups = {&byteRules,   &titleRules, &blockRules, &lineRules,
                                       &numberRules, &labelRules, &valueRules};
    TextNumbers nowhere;
    CUsedTexts usedTexts(findings, context.usedTexts != nullptr ? *context.usedTexts : nowhere);
    if (context.usedTexts != nullptr) {
        groups.push_back(&usedTexts);
    }
    WalkLines(bytes, groups);
    return findings.Take();
}

std::vector<Finding> ComparePair(const NamedBytes& templateFile, const NamedBytes& workingFile) {
    CFindingList templateFindings(templateFile.file);
    CFindingList workingFindings(workingFile.file);
    CPairSide templateSide(templateFindings);
    CPairSide workingSide(workingFindings);
    WalkLines(templateFile.bytes, std::vector<CRuleGroup*>{&templateSide});
    WalkLines(workingFile.bytes, std::vector<CRuleGroup*>{&workingSide});
    if (!templateSide.IsAssigned() && !workingSide.IsAssigned()) {
        workingSide.CompareWith(templateSide);
    }
    std::vector<Finding> findings = templateFindings.Take();
    for (Finding& finding : workingFindings.Take()) {
        findings.push_back(std::move(finding));
    }
    return findings;
}

}  // namespace tavrin::tools
