// The options of a program.
//
//     std::string plugIn;
//     int units = 2;
//     CCommandLine commandLine;
//     commandLine.AddText("--plugin", "TavrinWnd.dll", plugIn);
//     commandLine.AddNumber("--lunits", 4, {1, 5}, units);
//     commandLine.Parse(arguments);  // "--plugin door.dll --lunits=4"
//
// An option's value follows it or its "=". After "--" nothing is an option. All text is UTF-8. Variables must
// outlive the call of Parse.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tavrin::cmdline {

// A command line that makes no sense. The text is one line without a full stop.
class CUsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A value that an option does not accept; `expected` says what it does.
CUsageError InvalidValue(const std::string& option, const std::string& value, const std::string& expected);

class CCommandLine {
public:
    using Take = std::function<void(const std::string& value)>;

    // Both ends belong to it.
    struct Range {
        int lowest;
        int highest;
    };

    CCommandLine();
    ~CCommandLine();
    CCommandLine(const CCommandLine&) = delete;
    CCommandLine& operator=(const CCommandLine&) = delete;

    // An option without a value.
    void AddFlag(const std::string& name, bool& flag);
    // A flag such as --help: where it is given, Parse sets it and takes no notice of anything else.
    void AddExitFlag(const std::string& name, bool& flag);

    // An option with a value that is not empty. `example` is such a value, for messages. `take` is called for
    // each occurrence, in the order of the command line, and may throw CUsageError.
    void AddOption(const std::string& name, const std::string& example, Take take);
    void AddText(const std::string& name, const std::string& example, std::string& text);
    void AddTexts(const std::string& name, const std::string& example, std::vector<std::string>& texts);
    void AddNumber(const std::string& name, int example, Range range, int& number);

    // Accepts arguments that are neither options nor their values. Without it they are errors.
    void AddArguments(std::vector<std::string>& arguments);

    // Throws CUsageError for unknown options and arguments, and for missing and invalid values.
    void Parse(const std::vector<std::string>& arguments);

private:
    void CheckAssignment(const std::string& argument) const;
    void TakeRest(const std::vector<std::string>& rest) const;

    std::unique_ptr<CLI::App> m_app;
    std::map<std::string, std::string> m_examples;  // of the options with a value
    std::map<std::string, bool*> m_exitFlags;
    std::vector<std::string>* m_arguments = nullptr;
};

}  // namespace tavrin::cmdline
