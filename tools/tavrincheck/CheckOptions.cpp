#include "CheckOptions.h"

#include <optional>
#include <sstream>

#include "Files.h"

namespace {

// Walks over the arguments; an option and its value may be one of them or two.
class CArguments {
public:
    explicit CArguments(const std::vector<std::string>& arguments) : m_arguments(arguments) {}

    // The next option's or file's name; false at the end.
    bool Next() {
        if (m_next == m_arguments.size()) {
            return false;
        }
        m_raw = m_arguments[m_next++];
        m_current = m_raw;
        m_value.reset();
        const std::size_t equals = m_current.find('=');
        if (m_current.starts_with("--") && equals != std::string::npos) {
            m_value = m_current.substr(equals + 1);
            m_current.resize(equals);
        }
        return true;
    }

    const std::string& Raw() const { return m_raw; }
    const std::string& Current() const { return m_current; }  // of an option without "=" and its value

    std::string Value(const char* meaning) {
        if (!m_value && m_next < m_arguments.size()) {
            m_value = m_arguments[m_next++];
        }
        if (!m_value || m_value->empty()) {
            throw CToolError(m_current + " lacks its value: give " + meaning + " behind it");
        }
        return *m_value;
    }

    void ExpectNoValue() const {
        if (m_value) {
            throw CToolError(m_current + " takes no value");
        }
    }

private:
    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    std::string m_raw;
    std::string m_current;
    std::optional<std::string> m_value;
};

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

}  // namespace

SCheckOptions ParseCheckOptions(const std::vector<std::string>& arguments) {
    SCheckOptions options;
    bool onlyNames = false;
    for (CArguments rest(arguments); rest.Next();) {
        const std::string& current = rest.Current();
        if (onlyNames || current == "-" || !current.starts_with("-")) {
            options.names.push_back(rest.Raw());
        } else if (current == "--") {
            onlyNames = true;
        } else if (current == "--format") {
            options.format = FormatOf(rest.Value("text, json or sarif"));
        } else if (current == "--disable") {
            AppendList(options.disabledRules, rest.Value("the name of a rule"));
        } else if (current == "--texts") {
            options.texts.push_back(rest.Value("a string table script or a DLL"));
        } else if (bool* const flag = FlagOf(options, current)) {
            rest.ExpectNoValue();
            *flag = true;
        } else {
            throw CToolError("the option '" + current + "' is not known: see --help");
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
could not be read, or the command line makes no sense.
)";
}
