// Bytes that the module interprets differently than other programs.
#pragma once

#include <cstddef>
#include <string_view>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList ByteRules();

class CByteRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const ItemLine& line) override;

    // Whether a file is UTF-16, with or without a byte order mark.
    static bool IsUtf16(std::wstring_view firstLine);

private:
    // Reports the first characters beyond ASCII from `start` on.
    void ReportNonAscii(const ItemLine& line, std::size_t start);
};

}  // namespace tavrin::tools
