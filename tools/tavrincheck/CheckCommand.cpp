#include "tools/tavrincheck/CheckCommand.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string_view>

#include "cmdline/CommandLine.h"
#include "tools/files/FileList.h"
#include "tools/files/Files.h"
#include "tools/rules/FileCheck.h"
#include "tools/rules/RuleTable.h"
#include "tools/rules/TextRules.h"
#include "tools/tavrincheck/CheckOptions.h"
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
        CFileCheck check(m_options.texts.empty() ? nullptr : &m_texts);
        for (const ItemFile& file : list.files) {
            try {
                Add(check.Check(file));
            } catch (const CToolError& error) {
                m_errors.emplace_back(error.what());
            }
        }
        if (!m_options.texts.empty()) {
            Add(CheckTexts(m_texts, check.UsedTexts()));
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

    const CheckOptions& m_options;
    std::set<std::string, std::less<>> m_disabled;
    CTextTable m_texts;
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
