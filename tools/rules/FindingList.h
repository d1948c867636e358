// Collects what is found in one file.
#pragma once

#include <string>
#include <vector>

#include "tools/rules/Finding.h"
#include "tools/rules/ItemLine.h"

class CFindingList {
public:
    // `file` is its name for the user.
    explicit CFindingList(std::string file) : m_file(std::move(file)) {}

    // A finding at the characters [start, start + length) of a line.
    SFinding Make(const SRule& rule, const SItemLine& line, std::size_t start, std::size_t length,
                  std::string message) const;
    // A finding about the file as a whole.
    SFinding Make(const SRule& rule, std::string message) const;

    void Add(SFinding finding) { m_findings.push_back(std::move(finding)); }
    void Add(const SRule& rule, const SItemLine& line, std::size_t start, std::size_t length,
             std::string message) {
        Add(Make(rule, line, start, length, std::move(message)));
    }
    void Add(const SRule& rule, std::string message) { Add(Make(rule, std::move(message))); }

    // All findings in the order of their places; the list is empty afterwards.
    std::vector<SFinding> Take();

private:
    std::string m_file;
    std::vector<SFinding> m_findings;
};
