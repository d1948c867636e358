// Bytes that mean something else to the module than to other programs.
#pragma once

#include <string_view>

#include "tools/rules/RuleGroup.h"

RuleList ByteRules();

class CByteRules : public CRuleGroup {
public:
    using CRuleGroup::CRuleGroup;
    void TakeLine(const SItemLine& line) override;

    // Whether a file is UTF-16, with its mark or without, so that none of its lines is what it looks like.
    static bool IsUtf16(std::wstring_view firstLine);
};
