#include "tools/tavrincheck/CheckCommand.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string_view>

#include "cmdline/CommandLine.h"
#include "encoding/Encoding.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/Files.h"
#include "tools/rules/Checker.h"
#include "tools/rules/PictureRules.h"
#include "tools/rules/RuleTable.h"
#include "tools/rules/TextRules.h"
#include "tools/tavrincheck/CheckOptions.h"
#include "tools/tavrincheck/FileList.h"
#include "tools/tavrincheck/Output.h"
#include "tools/tavrincheck/Report.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

namespace {

enum EExitStatus { ES_CLEAN, ES_FINDINGS, ES_COULD_NOT_RUN };

constexpr char kVersion[] = TAVRIN_VERSION;

// The check of all files: findings and errors.
class CCheckRun {
public:
    explicit CCheckRun(const CheckOptions& options) : m_options(options) {
        for (const std::string& rule : options.disabledRules) {
            if (FindRule(rule) == nullptr) {
                throw cmdline::InvalidValue("--disable", rule, "the name of a rule, see --rules");
            }
            m_disabled.insert(rule);
        }
        for (const std::string& name : options.texts) {
            m_texts.ReadFile(name);
        }
    }

    void Run() {
        FileList list = ListFiles(m_options.names);
        m_errors = std::move(list.errors);
        m_remarks = std::move(list.remarks);
        for (const ItemFile& file : list.files) {
            try {
                CheckFile(file);
            } catch (const CToolError& error) {
                m_errors.emplace_back(error.what());
            }
        }
        if (!m_options.texts.empty()) {
            Add(CheckTexts(m_texts, m_usedTexts));
        }
    }

    const std::vector<Finding>& Findings() const { return m_findings; }
    const std::vector<std::string>& Errors() const { return m_errors; }
    const std::vector<std::string>& Remarks() const { return m_remarks; }

private:
    void Add(std::vector<Finding> findings) {
        std::copy_if(std::make_move_iterator(findings.begin()), std::make_move_iterator(findings.end()),
                     std::back_inserter(m_findings),
                     [this](const Finding& finding) { return !m_disabled.contains(finding.rule->id); });
    }

    void CheckFile(const ItemFile& file) {
        const std::string bytes = ReadBytes(file.name);
        CheckContext context;
        context.file = file.name;
        context.isWorkingFile = file.isWorkingFile;
        context.texts = m_options.texts.empty() ? nullptr : &m_texts;
        context.usedTexts = &m_usedTexts;
        Add(CheckText(bytes, context));
        if (!file.item.empty()) {
            ComparePairOf(file, bytes);
        }
        if (!file.item.empty() && !file.isWorkingFile) {
            CheckPicturesOf(file);
        }
    }

    // Compares each pair once, with the first of its two files.
    void ComparePairOf(const ItemFile& file, const std::string& bytes) {
        const std::string other =
            file.item + encoding::EncodeUtf8(file.isWorkingFile ? itemdlg::kTemplateFileEnding
                                                                : itemdlg::kWorkingFileEnding);
        if (!IsFile(other) || !m_comparedItems.insert(file.item).second) {
            return;
        }
        const std::string otherBytes = ReadBytes(other);
        const NamedBytes mine{file.name, bytes};
        const NamedBytes others{other, otherBytes};
        Add(file.isWorkingFile ? ComparePair(others, mine) : ComparePair(mine, others));
    }

    void CheckPicturesOf(const ItemFile& file) {
        const std::filesystem::path folder = PathOf(file.item).parent_path();
        PictureContext context;
        context.templateFile = file.name;
        context.routineFile = file.item + ".lsp";
        context.baseName = NameOf(PathOf(file.item).filename());
        context.exists = [&](const std::string& name) { return IsFile(NameOf(folder / PathOf(name))); };
        if (IsFile(context.routineFile)) {
            context.routine = ReadBytes(context.routineFile);
        }
        Add(CheckPictures(context));
    }

    static bool IsFile(const std::string& name) {
        std::error_code ignored;
        return std::filesystem::is_regular_file(PathOf(name), ignored);
    }

    const CheckOptions& m_options;
    std::set<std::string, std::less<>> m_disabled;
    CTextTable m_texts;
    TextNumbers m_usedTexts;
    std::set<std::string> m_comparedItems;
    std::vector<Finding> m_findings;
    std::vector<std::string> m_errors;
    std::vector<std::string> m_remarks;
};

std::string Report(const std::vector<Finding>& findings, EReportFormat format) {
    switch (format) {
        case RF_JSON:
            return JsonReport(findings);
        case RF_SARIF:
            return SarifReport(findings, AllRules(), kVersion);
        default:
            return TextReport(findings);
    }
}

}  // namespace

int RunCheck(const std::vector<std::string>& arguments) {
    const CheckOptions options = ParseCheckOptions(arguments);
    if (options.help || options.version || options.listRules) {
        Print(options.help      ? CheckHelp()
              : options.version ? "tavrincheck " + std::string(kVersion) + "\n"
                                : RulesText());
        return ES_CLEAN;
    }
    CCheckRun run(options);
    run.Run();
    Print(Report(run.Findings(), options.format));
    for (const auto* const lines : {&run.Remarks(), &run.Errors()}) {
        for (const std::string& line : *lines) {
            std::fprintf(stderr, "tavrincheck: %s\n", line.c_str());
        }
    }
    if (!run.Errors().empty()) {
        return ES_COULD_NOT_RUN;
    }
    const bool counts = std::any_of(
        run.Findings().begin(), run.Findings().end(),
        [&](const Finding& finding) { return options.strict || finding.rule->severity != SV_NOTE; });
    return counts ? ES_FINDINGS : ES_CLEAN;
}

}  // namespace tavrin::tools
