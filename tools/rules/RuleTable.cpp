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

namespace {

struct SGroup {
    std::string_view title;
    RuleList rules;
};

std::vector<SGroup> Groups() {
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

// Every line behind `start`, as Markdown's code.
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
    static const std::vector<const SRule*> rules = [] {
        std::vector<const SRule*> all;
        for (const SGroup& group : Groups()) {
            all.insert(all.end(), group.rules.begin(), group.rules.end());
        }
        return all;
    }();
    return rules;
}

const SRule* FindRule(std::string_view id) {
    const RuleList rules = AllRules();
    const auto found =
        std::find_if(rules.begin(), rules.end(), [id](const SRule* rule) { return rule->id == id; });
    return found != rules.end() ? *found : nullptr;
}

std::string RulesText() {
    std::string text;
    for (const SGroup& group : Groups()) {
        text += text.empty() ? "## " : "\n## ";
        text.append(group.title).append("\n");
        for (const SRule* const rule : group.rules) {
            text.append("\n### ").append(rule->id).append("\n\n");
            text.append(SeverityName(rule->severity)).append(": ").append(rule->title).append(".\n\n");
            text.append(rule->explanation).append("\n\n").append(Indented(rule->example)).append("\n");
        }
    }
    return text;
}
