#include "tools/tavrincheck/TextsCommand.h"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "cmdline/CommandLine.h"
#include "tools/files/Files.h"
#include "tools/files/Folders.h"
#include "tools/tavrincheck/Output.h"
#include "tools/texts/LineError.h"
#include "tools/texts/StringModule.h"

namespace tavrin::tools {

using cmdline::CCommandLine;

namespace {

constexpr const char* kHelp = R"(tavrincheck texts: makes TavrinRes.dll from its string table script

  tavrincheck texts FILE... -o MODULE [--machine x64|x86]

The texts of all files go into one module. A FILE is a script, or a module whose texts are taken over. A number that two
files use must have the same text in both. The same texts give the same bytes.

  -o MODULE      the module to write, such as TavrinRes.dll; the host loads it by this name. A missing folder is made
  --machine M    x64 for a 64-bit host, x86 for a 32-bit one (default: that of this program, x64 under Linux)
  -h, --help     print this help
)";

struct Options {
    std::vector<std::string> files;
    std::string module;
    EMachine machine = OwnMachine();
    bool help = false;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    CCommandLine commandLine;
    commandLine.AddText("-o", "TavrinRes.dll", options.module);
    commandLine.AddOption("--machine", "x64",
                          [&](const std::string& value) { options.machine = MachineOf(value); });
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    commandLine.AddArguments(options.files);
    commandLine.Parse(arguments);
    if (options.help) {
        return options;
    }
    if (options.files.empty()) {
        throw CToolError("no script: give a string table script, for example TavrinRes.rc, or see --help");
    }
    if (options.module.empty()) {
        throw CToolError("option '-o' is required, for example -o TavrinRes.dll");
    }
    return options;
}

CToolError ErrorAt(const CTextTable& table, const TextEntry& text, const std::string& message) {
    const std::string& file = table.Files()[text.file];
    return text.line != 0 ? LineError(file, text.line, message) : CToolError(file + ": " + message);
}

std::vector<CompiledText> CompiledTexts(const CTextTable& table) {
    std::vector<CompiledText> texts;
    // A language may have a name in one file and a number in another.
    std::map<std::pair<unsigned, unsigned>, const TextEntry*> known;
    for (const TextEntry& text : table.Texts()) {
        const std::optional<unsigned> language = table.LanguageIdOf(text.language);
        if (!language) {
            throw ErrorAt(table, text,
                          "the language " + table.Languages()[text.language] +
                              " is unknown: write its numbers, such as LANGUAGE 0x10, 0x01");
        }
        if (text.text.size() > kLongestCompiledText) {
            throw ErrorAt(table, text, "text " + std::to_string(text.number) + " is too long for a module");
        }
        const auto [other, isFirst] = known.try_emplace({text.number, *language}, &text);
        if (!isFirst && other->second->text == text.text) {
            continue;
        }
        if (!isFirst) {
            throw ErrorAt(table, text,
                          "text " + std::to_string(text.number) + " already exists, in " +
                              table.Files()[other->second->file]);
        }
        texts.push_back({text.number, *language, text.text});
    }
    return texts;
}

// Several languages in one module are legal, but mostly a line LANGUAGE that was forgotten.
std::string HintAtLanguages(const CTextTable& table) {
    std::set<unsigned> languages;
    std::string names;
    for (std::size_t index = 0; index < table.Languages().size(); ++index) {
        if (languages.insert(table.LanguageIdOf(index).value_or(0)).second) {
            names += (names.empty() ? "" : "; ") + table.Languages()[index];
        }
    }
    return languages.size() < 2
               ? ""
               : "The texts are in " + std::to_string(languages.size()) + " languages: " + names +
                     ". A user sees those of one of them alone. If they are meant to be in one, give all "
                     "scripts the same line LANGUAGE.\n";
}

}  // namespace

const char* MachineName(EMachine machine) {
    return machine == MC_X64 ? "x64" : "x86";
}

EMachine MachineOf(const std::string& name) {
    for (const EMachine machine : {MC_X64, MC_X86}) {
        if (name == MachineName(machine)) {
            return machine;
        }
    }
    throw cmdline::InvalidValue("--machine", name, "x64 or x86");
}

std::string ModuleOf(const CTextTable& table, EMachine machine) {
    return StringModule(CompiledTexts(table), machine);
}

void CheckModuleName(const std::string& module) {
    std::error_code ignored;
    if (std::filesystem::is_regular_file(PathOf(module), ignored) && !LooksLikeModule(ReadBytes(module))) {
        throw CToolError(module + ": this file exists and is not a module, choose another name");
    }
}

int RunTexts(const std::vector<std::string>& arguments) {
    const Options options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    CheckModuleName(options.module);
    CTextTable table;
    for (const std::string& file : options.files) {
        table.ReadFile(file);
    }
    const std::vector<CompiledText> texts = CompiledTexts(table);
    const std::string module = StringModule(texts, options.machine);
    CreateFolderOf(options.module);
    WriteBytes(options.module, module);
    const std::size_t count = texts.size();
    Print(options.module + ": " + std::to_string(count) + (count == 1 ? " text" : " texts") + ", for " +
          MachineName(options.machine) + " hosts\n" + HintAtLanguages(table));
    return 0;
}

}  // namespace tavrin::tools
