// tavrincheck: the first argument may name a subcommand; without one files are checked.
#include <cstdio>
#include <exception>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h.
#include <shellapi.h>
#endif

#include "encoding/Encoding.h"
#include "tools/files/Files.h"
#include "tools/tavrincheck/CheckCommand.h"
#include "tools/tavrincheck/ExtractCommand.h"
#include "tools/tavrincheck/NewCommand.h"
#include "tools/tavrincheck/PreviewCommand.h"
#include "tools/tavrincheck/TextsCommand.h"

namespace tavrin::tools {

namespace {

// The exit status after an error.
constexpr int kCouldNotRun = 2;

#ifdef _WIN32
// The runtime's arguments are in the system's code page, which does not have all characters of file names.
std::vector<std::string> Arguments(int /*count*/, char** /*values*/) {
    int count = 0;
    wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(encoding::EncodeUtf8(values[i]));
    }
    LocalFree(values);
    return arguments;
}

// The output is UTF-8 with line feeds on all systems.
void PrepareOutput() {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
}
#else
std::vector<std::string> Arguments(int count, char** values) {
    return std::vector<std::string>(values + (count > 0 ? 1 : 0), values + count);
}

void PrepareOutput() {}
#endif

// Runs a subcommand with the arguments after its name and returns the exit status. May throw CToolError and
// CUsageError.
using Command = int (*)(const std::vector<std::string>& arguments);

int Run(std::vector<std::string> arguments) {
    static const std::map<std::string_view, Command> commands = {
        {"extract", RunExtract},
        {"new", RunNew},
        {"preview", RunPreview},
        {"texts", RunTexts},
    };
    const auto command = arguments.empty() ? commands.end() : commands.find(arguments.front());
    if (command == commands.end()) {
        return RunCheck(arguments);
    }
    arguments.erase(arguments.begin());
    return command->second(arguments);
}

}  // namespace

}  // namespace tavrin::tools

int main(int count, char** values) {
    using namespace tavrin::tools;
    try {
        PrepareOutput();
        return Run(Arguments(count, values));
    } catch (const CToolError& error) {
        std::fprintf(stderr, "tavrincheck: %s\n", error.what());
    } catch (const std::bad_alloc&) {
        std::fputs("tavrincheck: out of memory\n", stderr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tavrincheck: %s\n", error.what());
    }
    return kCouldNotRun;
}
