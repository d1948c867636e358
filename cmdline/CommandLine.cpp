#include "cmdline/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cmdline/ParseNumber.h"

namespace tavrin::cmdline {

namespace {

constexpr char kSeeHelp[] = ", see --help";

CUsageError MissingValue(const std::string& option, const std::string& example) {
    return CUsageError("option '" + option + "' requires a value, for example " + example);
}

bool IsOption(const std::string& argument) {
    return argument.size() > 1 && argument.front() == '-';
}

}  // namespace

CUsageError InvalidValue(const std::string& option, const std::string& value, const std::string& expected) {
    return CUsageError("invalid value '" + value + "' for option '" + option + "': expected " + expected);
}

CCommandLine::CCommandLine() : m_app(std::make_unique<CLI::App>()) {
    m_app->set_help_flag();
    // On Windows the parser would take a path such as /items for an option.
    m_app->allow_windows_style_options(false);
    // Reported by Parse, in the form of the other messages.
    m_app->allow_extras();
}

CCommandLine::~CCommandLine() = default;

void CCommandLine::AddFlag(const std::string& name, bool& flag) {
    m_app->add_flag_callback(name, [&flag] { flag = true; });
}

void CCommandLine::AddExitFlag(const std::string& name, bool& flag) {
    AddFlag(name, flag);
    m_exitFlags[name] = &flag;
}

void CCommandLine::AddOption(const std::string& name, const std::string& example, Take take) {
    m_examples[name] = example;
    CLI::Option* const option =
        m_app->add_option(name, [=, take = std::move(take)](const CLI::results_t& values) {
            for (const std::string& value : values) {
                if (value.empty()) {
                    throw MissingValue(name, example);
                }
                take(value);
            }
            return true;
        });
    // What looks like an option is not taken for a value.
    option->expected(0, 1);
    // Once for each occurrence, so that options with a common order keep it.
    option->trigger_on_parse();
}

void CCommandLine::AddText(const std::string& name, const std::string& example, std::string& text) {
    AddOption(name, example, [&text](const std::string& value) { text = value; });
}

void CCommandLine::AddTexts(const std::string& name, const std::string& example,
                            std::vector<std::string>& texts) {
    AddOption(name, example, [&texts](const std::string& value) { texts.push_back(value); });
}

void CCommandLine::AddNumber(const std::string& name, int example, Range range, int& number) {
    AddOption(name, std::to_string(example), [=, &number](const std::string& value) {
        const std::optional<int> parsed = ParseNumber<int>(value);
        if (!parsed || *parsed < range.lowest || *parsed > range.highest) {
            throw InvalidValue(
                name, value,
                "a number from " + std::to_string(range.lowest) + " to " + std::to_string(range.highest));
        }
        number = *parsed;
    });
}

void CCommandLine::AddArguments(std::vector<std::string>& arguments) {
    m_arguments = &arguments;
}

void CCommandLine::Parse(const std::vector<std::string>& arguments) {
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    for (auto argument = arguments.begin(); argument != end; ++argument) {
        if (const auto exit = m_exitFlags.find(*argument); exit != m_exitFlags.end()) {
            *exit->second = true;
            return;
        }
    }
    std::for_each(arguments.begin(), end, [this](const std::string& argument) { CheckAssignment(argument); });
    // The parser expects the last argument first.
    m_app->parse(std::vector<std::string>(std::make_reverse_iterator(end), arguments.rend()));
    const std::vector<std::string> rest = m_app->remaining();
    const auto unknown = std::find_if(rest.begin(), rest.end(), IsOption);
    if (unknown != rest.end()) {
        throw CUsageError("unknown option '" + unknown->substr(0, unknown->find('=')) + "'" + kSeeHelp);
    }
    TakeRest(rest);
    TakeRest({end != arguments.end() ? end + 1 : end, arguments.end()});
}

// Of "--option=value": the parser would take the next argument for an empty value, and a value for a flag.
void CCommandLine::CheckAssignment(const std::string& argument) const {
    const std::size_t equals = argument.find('=');
    if (!IsOption(argument) || equals == std::string::npos) {
        return;
    }
    const std::string name = argument.substr(0, equals);
    const auto example = m_examples.find(name);
    if (example == m_examples.end() && m_app->get_option_no_throw(name) != nullptr) {
        throw CUsageError("option '" + name + "' takes no value");
    }
    if (example != m_examples.end() && equals + 1 == argument.size()) {
        throw MissingValue(name, example->second);
    }
}

void CCommandLine::TakeRest(const std::vector<std::string>& rest) const {
    if (!rest.empty() && m_arguments == nullptr) {
        throw CUsageError("unexpected argument '" + rest.front() + "'" + kSeeHelp);
    }
    if (m_arguments != nullptr) {
        m_arguments->insert(m_arguments->end(), rest.begin(), rest.end());
    }
}

}  // namespace tavrin::cmdline
