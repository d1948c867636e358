// Compares a template and its working file.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList PairRules();

// The lines of one of the two files that are compared.
class CPairSide : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const ItemLine& line) override;

    // Whether the file contains OK's assignments, so that there is nothing to compare.
    bool IsAssigned() const { return m_isAssigned; }

    // Called for the working file: adds differences to its findings or to those of the template.
    void CompareWith(CPairSide& templateFile);

private:
    // A line that opens or closes a block, or a parameter.
    struct ComparedLine {
        ItemLine line;  // without its parameter
        std::wstring number;
        std::wstring label;
        wchar_t typeLetter = L'\0';
        bool isWritten = false;  // a parameter of a valid type, which OK writes to the template
    };

    const ComparedLine* Find(const std::wstring& number) const;
    bool ReportMissing(const CPairSide& other, const Rule& rule, const std::string& message);
    void CompareParameters(const CPairSide& templateFile);
    void CompareLayout(const CPairSide& templateFile);

    std::vector<ComparedLine> m_lines;
    std::unordered_map<std::wstring, std::size_t> m_indices;  // in m_lines, of the last line with a number
    bool m_isAssigned = false;
};

}  // namespace tavrin::tools
