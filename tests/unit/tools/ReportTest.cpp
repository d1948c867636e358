// The forms for programs say the same as the one for people.
#include "tools/tavrincheck/Report.h"

#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/unit/tools/CheckRun.h"
#include "tools/files/Files.h"
#include "tools/rules/RuleTable.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

using Json = nlohmann::json;

class Reports : public CBadFiles {
protected:
    static Json Parsed(const std::string& format) {
        const CheckRun run = CheckBadFiles({"--format", format});
        EXPECT_EQ(run.status, 1);
        return Json::parse(run.output);
    }

    // The findings' own lines of the form for people.
    static std::vector<std::string> ExpectedLines() {
        std::vector<std::string> lines;
        const std::string expected = ReadBytes("bad.expected");
        for (std::size_t start = 0; start < expected.size();) {
            const std::size_t end = expected.find('\n', start);
            if (expected.compare(start, 1, " ") != 0) {
                lines.push_back(expected.substr(start, end - start));
            }
            start = end + 1;
        }
        return lines;
    }

    static std::string Line(const std::string& file, std::size_t line, std::size_t column,
                            const std::string& severity, const std::string& message,
                            const std::string& rule) {
        const std::string position =
            line == 0 ? "" : ":" + std::to_string(line) + ":" + std::to_string(column);
        return file + position + ": " + severity + ": " + message + " [" + rule + "]";
    }
};

TEST_F(Reports, JsonHoldsEveryFinding) {
    const Json report = Parsed("json");
    std::vector<std::string> lines;
    std::map<std::string, std::size_t> counts;
    for (const Json& finding : report.at("findings")) {
        lines.push_back(Line(finding.at("file"), finding.at("line"), finding.at("column"),
                             finding.at("severity"), finding.at("message"), finding.at("rule")));
        ++counts[finding.at("severity")];
    }
    EXPECT_EQ(lines, ExpectedLines());
    EXPECT_EQ(report.at("errors"), counts["error"]);
    EXPECT_EQ(report.at("warnings"), counts["warning"]);
    EXPECT_EQ(report.at("notes"), counts["note"]);
}

TEST_F(Reports, JsonGivesTheLengthOfTheOffendingText) {
    const Json report = Parsed("json");
    for (const Json& finding : report.at("findings")) {
        if (finding.at("rule") == "value-no-number" && finding.at("line") == 6) {
            EXPECT_EQ(finding.at("length"), 4U);
            return;
        }
    }
    FAIL() << "the finding is not there";
}

TEST_F(Reports, SarifHoldsEveryFinding) {
    const Json log = Parsed("sarif");
    EXPECT_EQ(log.at("version"), "2.1.0");
    ASSERT_EQ(log.at("runs").size(), 1U);
    const Json& run = log.at("runs")[0];
    const Json& rules = run.at("tool").at("driver").at("rules");
    std::vector<std::string> lines;
    for (const Json& result : run.at("results")) {
        ASSERT_EQ(rules.at(result.at("ruleIndex").get<std::size_t>()).at("id"), result.at("ruleId"));
        const Json& location = result.at("locations").at(0).at("physicalLocation");
        const Json region = location.value("region", Json{{"startLine", 0}, {"startColumn", 0}});
        lines.push_back(Line(location.at("artifactLocation").at("uri"), region.at("startLine"),
                             region.at("startColumn"), result.at("level"), result.at("message").at("text"),
                             result.at("ruleId")));
    }
    EXPECT_EQ(lines, ExpectedLines());
}

TEST_F(Reports, SarifKnowsEveryRule) {
    std::set<std::string> ids;
    const Json log = Parsed("sarif");
    for (const Json& rule : log.at("runs")[0].at("tool").at("driver").at("rules")) {
        ids.insert(rule.at("id").get<std::string>());
        EXPECT_FALSE(rule.at("fullDescription").at("text").get<std::string>().empty());
    }
    EXPECT_EQ(ids.size(), AllRules().size());
}

TEST_F(Reports, ACleanRunIsAReportWithoutFindings) {
    const std::string samples = TAVRIN_SAMPLES "/door";
    const Json report = Json::parse(Check({samples, "--format", "json"}).output);
    EXPECT_EQ(report, (Json{{"findings", Json::array()}, {"errors", 0}, {"warnings", 0}, {"notes", 0}}));
    const Json log = Json::parse(Check({samples, "--format", "sarif"}).output);
    EXPECT_EQ(log.at("runs")[0].at("results"), Json::array());
}

Finding FindingIn(const std::string& file) {
    Finding finding;
    finding.rule = AllRules().front();
    finding.file = file;
    return finding;
}

TEST(Report, ANameOfAFileIsAReferenceInSarif) {
    const std::map<std::string, std::string> references = {
        {"a b/\xC3\xA0%.TXT", "a%20b/%C3%A0%25.TXT"},
        {"/items/a.TXT", "file:///items/a.TXT"},
        {"C:\\items\\a.TXT", "file:///C:/items/a.TXT"},
        {"..\\a.TXT", "../a.TXT"},
    };
    for (const auto& [file, reference] : references) {
        const Finding finding = FindingIn(file);
        const Json log = Json::parse(SarifReport({&finding, 1}, AllRules(), "1"));
        const Json& location = log.at("runs")[0].at("results")[0].at("locations")[0].at("physicalLocation");
        EXPECT_EQ(location.at("artifactLocation").at("uri"), reference);
        EXPECT_FALSE(location.contains("region"));
    }
}

TEST(Report, ANameThatIsNoUtf8DoesNotBreakJson) {
    const Finding finding = FindingIn("\xFF.TXT");
    EXPECT_EQ(Json::parse(JsonReport({&finding, 1})).at("findings")[0].at("file"), "\xEF\xBF\xBD.TXT");
}

TEST(Report, AnExcerptShowsEveryCharacterInOneColumn) {
    const std::wstring line = L"a\x7F\t\x00E0\x0093\x0081z";
    const Excerpt excerpt = MakeExcerpt(line, 6, 1);
    EXPECT_EQ(excerpt.text, "a\xE2\x90\xA1\xE2\x90\x89\xC3\xA0\xE2\x80\x9C\xEF\xBF\xBDz");
    EXPECT_EQ(excerpt.start, 6U);
    EXPECT_EQ(excerpt.length, 1U);
}

TEST(Report, AnExcerptOfALongLineHoldsWhatStandsAroundTheOffendingText) {
    const std::wstring line = std::wstring(1000, L'a') + L"b" + std::wstring(1000, L'c');
    const Excerpt excerpt = MakeExcerpt(line, 1000, 500);
    EXPECT_EQ(excerpt.text, std::string(60, 'a') + "b" + std::string(99, 'c'));
    EXPECT_EQ(excerpt.start, 60U);
    EXPECT_EQ(excerpt.length, 100U);
    EXPECT_EQ(Quoted(line), "'" + std::string(60, 'a') + "\xE2\x80\xA6'");
}

}  // namespace
