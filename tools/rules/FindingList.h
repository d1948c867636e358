// Collects the findings of one file.
#pragma once

#include <string>
#include <vector>

#include "tools/rules/Finding.h"
#include "tools/rules/ItemLine.h"

namespace tavrin::tools {

class CFindingList {
public:
    // `file` is its name for the user.
    explicit CFindingList(std::string file) : m_file(std::move(file)) {}

    // A finding at the characters [start, start + length) of a line.
    Finding Make(const Rule& rule, const ItemLine& line, std::size_t start, std::size_t length,
                 std::string message) const;
    // A finding about the file as a whole.
    Finding Make(const Rule& rule, std::string message) const;

    void Add(Finding finding) { m_findings.push_back(std::move(finding)); }
    void Add(const Rule& rule, const ItemLine& line, std::size_t start, std::size_t length,
             std::string message) {
        Add(Make(rule, line, start, length, std::move(message)));
    }
    void Add(const Rule& rule, std::string message) { Add(Make(rule, std::move(message))); }

    // Removes and returns all findings, in the order of their positions.
    std::vector<Finding> Take();

private:
    std::string m_file;
    std::vector<Finding> m_findings;
};

}  // namespace tavrin::tools
