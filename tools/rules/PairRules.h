// A template and its working file side by side.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "tools/rules/RuleGroup.h"

RuleList PairRules();

// Keeps of one of the two files what the comparison looks at.
class CPairSide : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const SItemLine& line) override;

    // Whether the file holds what OK leaves in a working file, so that there is nothing to compare.
    bool IsAssigned() const { return m_isAssigned; }

    // As the working file: reports in this side's list, or in that of the template, where they differ.
    void CompareWith(CPairSide& templateFile);

private:
    // A line that opens or closes a block, or a parameter.
    struct SLine {
        SItemLine line;  // without its parameter
        std::wstring number;
        std::wstring label;
        wchar_t typeLetter = L'\0';
        bool isWritten = false;  // a parameter of a type, which OK writes into the template
    };

    const SLine* Find(const std::wstring& number) const;
    bool ReportMissing(const CPairSide& other, const SRule& rule, const std::string& message);
    void CompareParameters(const CPairSide& templateFile);
    void CompareLayout(const CPairSide& templateFile);

    std::vector<SLine> m_lines;
    std::unordered_map<std::wstring, std::size_t> m_places;  // in m_lines, of the last line with a number
    bool m_isAssigned = false;
};
