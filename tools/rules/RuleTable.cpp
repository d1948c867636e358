#include "tools/rules/RuleTable.h"

#include <algorithm>
#include <vector>

#include "tools/rules/BlockRules.h"
#include "tools/rules/ByteRules.h"
#include "tools/rules/LabelRules.h"
#include "tools/rules/LineRules.h"
#include "tools/rules/NumberRules.h"
#include "tools/rules/PairRules.h"
#include "tools/rules/PictureRules.h"
#include "tools/rules/PlaceholderRules.h"
#include "tools/rules/TextRules.h"
#include "tools/rules/TitleRules.h"
#include "tools/rules/ValueRules.h"

namespace tavrin::tools {

namespace {

struct Group {
    std::string_view title;
    RuleList rules;
};

std::vector<Group> Groups() {
    return {{"The title", TitleRules()},
            {"Blocks", BlockRules()},
            {"Lines that were meant as parameters", LineRules()},
            {"Numbers of parameters", NumberRules()},
            {"Labels", LabelRules()},
            {"Placeholders", PlaceholderRules()},
            {"Types and values", ValueRules()},
            {"Bytes", ByteRules()},
            {"Template and working file", PairRules()},
            {"Pictures", PictureRules()},
            {"Texts", TextRules()}};
}

// Lines as a Markdown code block.
std::string Indented(std::string_view lines) {
    std::string text = "    ";
    for (const char character : lines) {
        text += character;
        if (character == '\n') {
            text += "    ";
        }
    }
    return text;
}

}  // namespace

RuleList AllRules() {
    static const std::vector<const Rule*> rules = [] {
        std::vector<const Rule*> all;
        for (const Group& group : Groups()) {
            all.insert(all.end(), group.rules.begin(), group.rules.end());
        }
        return all;
    }();
    return rules;
}

const Rule* FindRule(std::string_view id) {
    const RuleList rules = AllRules();
    const auto found =
        std::find_if(rules.begin(), rules.end(), [id](const Rule* rule) { return rule->id == id; });
    return found != rules.end() ? *found : nullptr;
}

std::string RulesText() {
    std::string text;
    for (const Group& group : Groups()) {
        text += text.empty() ? "## " : "\n## ";
        text.append(group.title).append("\n");
        for (const Rule* const rule : group.rules) {
            text.append("\n### ").append(rule->id).append("\n\n");
            text.append(SeverityName(rule->severity)).append(": ").append(rule->title).append(".\n\n");
            text.append(rule->explanation).append("\n\n").append(Indented(rule->example)).append("\n");
        }
    }
    return text;
}

}  // namespace tavrin::tools
