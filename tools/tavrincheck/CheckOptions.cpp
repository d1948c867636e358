#include "tools/tavrincheck/CheckOptions.h"

#include <map>
#include <sstream>

#include "cmdline/CommandLine.h"
#include "tools/files/Files.h"

namespace tavrin::tools {

using cmdline::CCommandLine;

namespace {

EReportFormat FormatOf(const std::string& name) {
    static const std::map<std::string, EReportFormat> kFormats = {
        {"text", RF_TEXT}, {"json", RF_JSON}, {"sarif", RF_SARIF}};
    const auto format = kFormats.find(name);
    if (format == kFormats.end()) {
        throw cmdline::InvalidValue("--format", name, "text, json or sarif");
    }
    return format->second;
}

void AppendList(std::vector<std::string>& list, const std::string& value) {
    std::istringstream parts(value);
    for (std::string part; std::getline(parts, part, ',');) {
        list.push_back(part);
    }
}

}  // namespace

CheckOptions ParseCheckOptions(const std::vector<std::string>& arguments) {
    CheckOptions options;
    CCommandLine commandLine;
    commandLine.AddOption("--format", "json",
                          [&](const std::string& value) { options.format = FormatOf(value); });
    commandLine.AddOption("--disable", "block-empty",
                          [&](const std::string& value) { AppendList(options.disabledRules, value); });
    commandLine.AddTexts("--texts", "TavrinRes.rc", options.texts);
    commandLine.AddFlag("--strict", options.strict);
    commandLine.AddExitFlag("--rules", options.listRules);
    commandLine.AddExitFlag("--version", options.version);
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    commandLine.AddArguments(options.names);
    commandLine.Parse(arguments);
    if (options.names.empty() && !options.help && !options.version && !options.listRules) {
        throw CToolError("nothing to check: give a file or a folder, or see --help");
    }
    return options;
}

const char* CheckHelp() {
    return R"(tavrincheck: checks item files for errors, reading them as TavrinWnd.dll does

  tavrincheck [OPTIONS] FILE|FOLDER...
  tavrincheck new ...       writes the files of a new item (see tavrincheck new --help)
  tavrincheck preview ...   shows the item dialog as text (see tavrincheck preview --help)
  tavrincheck extract ...   moves labels into a string table (see tavrincheck extract --help)
  tavrincheck texts ...     makes TavrinRes.dll from its script (see tavrincheck texts --help)

NAME.TXT is checked as a template, NAME_TMP.TXT as a working file, and the two are compared if both exist. In
folders all *.TXT are checked. The picture NAME.png and the slides (pictures of variants) that NAME.lsp offers must
exist beside NAME.TXT.

  --texts FILE       the texts of placeholders: a string table script or a TavrinRes.dll; repeatable, one per
                     language
  --format FORMAT    text (default), json or sarif
  --disable RULES    disable a rule, or several separated by commas; repeatable
  --strict           findings of severity note lead to exit status 1 too
  --rules            print all rules, each with an explanation and an example
  --version          print the version
  -h, --help         print this help

Exit status: 0 no findings, or only notes without --strict; 1 findings; 2 a file could not be read, the findings
could not be printed, or the command line is invalid.
)";
}

}  // namespace tavrin::tools
