#include "tools/tavrincheck/ExtractCommand.h"

#include <filesystem>
#include <optional>

#include "cmdline/CommandLine.h"
#include "itemdlg/ItemFiles.h"
#include "itemdlg/TemplateText.h"
#include "tools/files/Files.h"
#include "tools/rules/TextRules.h"
#include "tools/tavrincheck/LabelExtraction.h"
#include "tools/tavrincheck/Output.h"
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/StringModule.h"

namespace tavrin::tools {

using cmdline::CCommandLine;

namespace {

constexpr const char* kHelp = R"(tavrincheck extract: moves literal labels into a string table script

  tavrincheck extract FILE --from N [--rc SCRIPT] [--write]

Each label of FILE without a placeholder, and its title, becomes a text of the script and is replaced by a
placeholder; a mark % stays in the file. All other bytes stay the same. Without --write nothing is written: the
changes are printed as a diff.

  --from N       the first number for a new text, 1 to 65535; numbers in use are skipped
  --rc SCRIPT    the script for the texts (default: FILE with the ending .rc). They are added to its last table in
                 the language of its first; existing texts are reused. A missing script is created,
                 with the texts 1363 and 5019 that the module itself shows
  --write        write both files
  -h, --help     print this help
)";

struct Options {
    std::vector<std::string> files;
    std::optional<std::string> script;
    int firstNumber = 0;  // 0: not given
    bool write = false;
    bool help = false;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    CCommandLine commandLine;
    commandLine.AddNumber("--from", 1501, {1, itemdlg::kHighestTextNumber}, options.firstNumber);
    commandLine.AddOption("--rc", "TavrinRes.rc", [&](const std::string& value) { options.script = value; });
    commandLine.AddFlag("--write", options.write);
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    commandLine.AddArguments(options.files);
    commandLine.Parse(arguments);
    if (options.help) {
        return options;
    }
    if (options.files.size() != 1) {
        throw CToolError("extract takes one file, not " + std::to_string(options.files.size()) +
                         ", see --help");
    }
    if (options.firstNumber == 0) {
        throw CToolError("option '--from' is required, for example --from 1501");
    }
    return options;
}

// A file before and after.
struct Change {
    std::string name;
    bool isNew = false;
    std::vector<std::string> lines;
    std::vector<LineEdit> edits;

    std::string Diff() const { return UnifiedDiff(isNew ? "/dev/null" : name, name, lines, edits); }
    std::string After() const { return Edited(lines, edits); }
};

std::vector<std::string> Bytes(const std::vector<FileLine>& lines) {
    std::vector<std::string> bytes;
    bytes.reserve(lines.size());
    for (const FileLine& line : lines) {
        bytes.push_back(BytesOf(line.text) + line.ending);
    }
    return bytes;
}

// The script's bytes; nothing when it does not exist.
std::optional<std::string> ReadScript(const std::string& name, const std::string& templateName) {
    if (!std::filesystem::exists(PathOf(name))) {
        return std::nullopt;
    }
    if (std::filesystem::equivalent(PathOf(name), PathOf(templateName))) {
        throw CToolError(name + ": this is the template itself: give a string table script with --rc");
    }
    std::string bytes = ReadBytes(name);
    if (LooksLikeModule(bytes)) {
        throw CToolError(name + ": texts cannot be added to a module: give its script");
    }
    return bytes;
}

// The texts of a new script: first those that the module itself shows.
std::vector<NewText> WithModuleTexts(const std::vector<NewText>& texts) {
    std::vector<NewText> all;
    for (const unsigned number : ModuleTexts()) {
        all.push_back({number, number == itemdlg::kHeaderPrefixText
                                   ? L"  Parameters: "
                                   : L"No picture was found for any of the variants."});
    }
    all.insert(all.end(), texts.begin(), texts.end());
    return all;
}

Change ScriptChange(const std::string& name, const std::optional<std::string>& script,
                    const std::string& templateName, const std::vector<NewText>& texts) {
    if (script) {
        return {name, false, LinesWithEnds(*script), EditsOfScript(name, *script, texts)};
    }
    return {name, true, {}, {{0, 0, LinesWithEnds(NewScript(templateName, WithModuleTexts(texts)))}}};
}

// Writes the changed files, or prints the changes.
void WriteOrShow(const std::vector<Change>& changes, bool write) {
    for (const Change& change : changes) {
        if (write) {
            WriteBytes(change.name, change.After());
            Print(change.name + ": written\n");
        } else {
            Print(change.Diff());
        }
    }
    Print("The dialog reads the working file: what writes it must write the same placeholders.\n");
    if (!write) {
        Print("Nothing was written: --write does it.\n");
    }
}

}  // namespace

int RunExtract(const std::vector<std::string>& arguments) {
    const Options options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    const std::string& file = options.files.front();
    const std::string scriptName = options.script.value_or(NameOf(PathOf(file).replace_extension(".rc")));
    const std::vector<FileLine> lines = SplitLines(ReadBytes(file));
    CTextTable table;
    const std::optional<std::string> script = ReadScript(scriptName, file);
    if (script) {
        table.ReadBytes(scriptName, *script);
    }
    const Extraction extraction =
        ExtractLabels(lines, static_cast<unsigned>(options.firstNumber), KnownTexts(table));
    for (const std::string& note : extraction.notes) {
        Print(std::string(file).append(": ").append(note).append("\n"));
    }
    const std::vector<std::string> before = Bytes(lines);
    const Change templateChange = {file, false, before, EditsBetween(before, Bytes(extraction.lines))};
    if (templateChange.edits.empty()) {
        Print(file + ": there is no literal label to move\n");
        return 0;
    }
    std::vector<Change> changes;
    if (!extraction.newTexts.empty()) {
        // First, so that the template never has a placeholder without a text.
        changes.push_back(
            ScriptChange(scriptName, script, NameOf(PathOf(file).filename()), extraction.newTexts));
    }
    changes.push_back(templateChange);
    WriteOrShow(changes, options.write);
    return 0;
}

}  // namespace tavrin::tools
