#include "tools/tavrincheck/CheckOptions.h"

#include <sstream>

#include "tools/files/Files.h"
#include "tools/tavrincheck/Arguments.h"

namespace {

EReportFormat FormatOf(const std::string& name) {
    if (name == "text") {
        return RF_TEXT;
    }
    if (name == "json") {
        return RF_JSON;
    }
    if (name == "sarif") {
        return RF_SARIF;
    }
    throw CToolError("--format does not know '" + name + "': give text, json or sarif");
}

void AppendList(std::vector<std::string>& list, const std::string& value) {
    std::istringstream parts(value);
    for (std::string part; std::getline(parts, part, ',');) {
        list.push_back(part);
    }
}

bool* FlagOf(SCheckOptions& options, const std::string& name) {
    if (name == "--strict") {
        return &options.strict;
    }
    if (name == "--rules") {
        return &options.listRules;
    }
    if (name == "--help" || name == "-h") {
        return &options.help;
    }
    return name == "--version" ? &options.version : nullptr;
}

void TakeOption(SCheckOptions& options, CArguments& arguments) {
    const std::string& name = arguments.Current();
    if (name == "--format") {
        options.format = FormatOf(arguments.Value("text, json or sarif"));
    } else if (name == "--disable") {
        AppendList(options.disabledRules, arguments.Value("the name of a rule"));
    } else if (name == "--texts") {
        options.texts.push_back(arguments.Value("a string table script or a DLL"));
    } else if (bool* const flag = FlagOf(options, name)) {
        arguments.ExpectNoValue();
        *flag = true;
    } else {
        arguments.FailUnknown();
    }
}

}  // namespace

SCheckOptions ParseCheckOptions(const std::vector<std::string>& arguments) {
    SCheckOptions options;
    for (CArguments rest(arguments); rest.Next();) {
        if (rest.IsOption()) {
            TakeOption(options, rest);
        } else {
            options.names.push_back(rest.Current());
        }
    }
    if (options.names.empty() && !options.help && !options.version && !options.listRules) {
        throw CToolError("there is nothing to check: name a file or a folder, or see --help");
    }
    return options;
}

const char* CheckHelp() {
    return R"(tavrincheck: checks item files as the module reads them

  tavrincheck [OPTIONS] FILE|FOLDER...

NAME.TXT is checked as a template, NAME_TMP.TXT as a working file, and the two are compared when both are
there. In folders all *.TXT are checked. Beside NAME.TXT the picture NAME.png and the slides that NAME.lsp
offers are looked for.

  --texts FILE       the texts that placeholders stand for: a string table script or a TavrinRes.dll;
                     repeatable, one per language
  --format FORMAT    text (the default), json or sarif
  --disable RULES    leave out a rule, or several with commas between them; repeatable
  --strict           let notes count for the exit status
  --rules            print all rules, each with an explanation and an example
  --version          print the version
  --help             print this text

Exit status: 0 nothing was found, or nothing but notes without --strict; 1 something was found; 2 a file
could not be read, the findings could not be printed, or the command line makes no sense.
)";
}
