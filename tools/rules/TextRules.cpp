#include "tools/rules/TextRules.h"

#include <algorithm>

#include "imagedlg/ChoiceSlides.h"
#include "itemdlg/ItemFiles.h"

namespace {

constexpr SRule kTextTooLong = {
    "text-too-long", SV_ERROR, "a text of more than 255 characters",
    "The module reads 255 characters of a text; the rest is cut off.",
    "1501 \"Clear width of the leaf, measured between ... (256 characters or more)\""};

constexpr SRule kTextMissing = {"text-missing", SV_ERROR, "a text is missing in one language",
                                "The languages that are given with --texts should have the same numbers. "
                                "Where a text is missing, its label\n"
                                "or title comes out empty in that language.",
                                "--texts TavrinRes.it.rc (has text 1501) --texts TavrinRes.en.rc (has not)"};

constexpr SRule kTextUnused = {"text-unused", SV_NOTE, "a text that none of the checked files uses",
                               "No placeholder in the files that were checked names it, and the module "
                               "itself does not use it. Check all\n"
                               "items together before you remove it.",
                               "1599 \"Handle colour\""};

constexpr const SRule* kRules[] = {&kTextTooLong, &kTextMissing, &kTextUnused};

// The texts that the module itself uses.
constexpr unsigned kModuleTexts[] = {tavrin::itemdlg::kHeaderPrefixText, tavrin::imagedlg::kNoSlideText};

// The excerpt is the text as it was read, which in a module has no other form.
SFinding AtText(const CTextTable& texts, const SText& text, const SRule& rule, const std::string& message) {
    SFinding finding;
    finding.rule = &rule;
    finding.file = texts.Files()[text.file];
    finding.line = text.line;
    finding.column = text.column;
    const std::wstring number = WideNumber(static_cast<int>(text.number));
    finding.length = text.line != 0 ? number.size() : 0;
    finding.message = "text " + std::to_string(text.number) + " " + message;
    finding.excerpt = MakeExcerpt(number + L" \"" + text.text + L'"', 0, number.size());
    return finding;
}

// The languages that lack a text, with commas between them.
std::string LanguagesWithout(const CTextTable& texts, unsigned number) {
    std::string missing;
    for (std::size_t language = 0; language < texts.Languages().size(); ++language) {
        if (texts.Find(number, language) == nullptr) {
            missing += (missing.empty() ? "" : ", ") + texts.Languages()[language];
        }
    }
    return missing;
}

}  // namespace

RuleList TextRules() {
    return kRules;
}

std::vector<SFinding> CheckTexts(const CTextTable& texts, const TextNumbers& used) {
    std::vector<SFinding> findings;
    for (const SText& text : texts.Texts()) {
        if (text.text.size() > CTextTable::kLongestText) {
            findings.push_back(AtText(
                texts, text, kTextTooLong,
                "has " + std::to_string(text.text.size()) + " characters, of which the module reads 255"));
        }
        // Both are said once, at the first language that has the text.
        if (texts.Find(text.number) != &text) {
            continue;
        }
        if (const std::string missing = LanguagesWithout(texts, text.number); !missing.empty()) {
            findings.push_back(AtText(texts, text, kTextMissing, "is missing in " + missing));
        }
        const bool isModules = std::find(std::begin(kModuleTexts), std::end(kModuleTexts), text.number) !=
                               std::end(kModuleTexts);
        if (!isModules && !used[text.number]) {
            findings.push_back(AtText(texts, text, kTextUnused, "is used by none of the checked files"));
        }
    }
    return findings;
}
