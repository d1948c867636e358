#include "tools/rules/TextRules.h"

#include <algorithm>

#include "imagedlg/ChoiceSlides.h"
#include "itemdlg/ItemFiles.h"

namespace tavrin::tools {

namespace {

constexpr Rule kTextTooLong = {
    "text-too-long", SV_ERROR, "a text of more than 255 characters",
    "The module reads 255 characters of a text and drops the rest.",
    "1501 \"Clear width of the leaf, measured between ... (256 characters or more)\""};

constexpr Rule kTextMissing = {
    "text-missing", SV_ERROR, "a text is missing in one language",
    "The files given with --texts should have the same numbers. Where a text is missing, its label or title\n"
    "is empty in that language.",
    "--texts TavrinRes.it.rc (has text 1501) --texts TavrinRes.en.rc (has not)"};

constexpr Rule kTextOfModule = {
    "text-of-module", SV_WARNING, "a text that the module itself shows is missing",
    "Text 1363 stands before the title in the header of the item dialog, text 5019 is the message of a "
    "choice\n"
    "without any slide. Without them the header shows the title alone, and the message is empty.",
    "TavrinRes.rc without 1363 \"  Parameters: \""};

constexpr Rule kTextUnused = {
    "text-unused", SV_NOTE, "a text that none of the checked files uses",
    "No placeholder in the checked files uses it, and neither does the module. Check all items together\n"
    "before you remove it.",
    "1599 \"Handle colour\""};

constexpr const Rule* kRules[] = {&kTextTooLong, &kTextMissing, &kTextOfModule, &kTextUnused};

constexpr unsigned kModuleTexts[] = {itemdlg::kHeaderPrefixText, imagedlg::kNoSlideText};

// The excerpt is the text as it was read, since a module has no lines.
Finding AtText(const CTextTable& texts, const TextEntry& text, const Rule& rule, const std::string& message) {
    Finding finding;
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

std::span<const unsigned> ModuleTexts() {
    return kModuleTexts;
}

std::vector<Finding> CheckTextsOfModule(const CTextTable& texts) {
    std::vector<Finding> findings;
    for (const unsigned number : kModuleTexts) {
        if (!texts.Files().empty() && texts.Find(number) == nullptr) {
            Finding& finding = findings.emplace_back();
            finding.rule = &kTextOfModule;
            finding.file = texts.Files().front();
            finding.message =
                "text " + std::to_string(number) + " is missing: " +
                (number == itemdlg::kHeaderPrefixText ? "it stands before the title in the dialog's header"
                                                      : "it is the message of a choice without any slide");
        }
    }
    return findings;
}

std::vector<Finding> CheckTexts(const CTextTable& texts, const TextNumbers& used) {
    std::vector<Finding> findings = CheckTextsOfModule(texts);
    for (const TextEntry& text : texts.Texts()) {
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

}  // namespace tavrin::tools
