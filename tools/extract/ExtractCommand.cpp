#include "tools/extract/ExtractCommand.h"

#include <filesystem>
#include <optional>

#include "itemdlg/TemplateText.h"
#include "tools/cmdline/Arguments.h"
#include "tools/cmdline/Output.h"
#include "tools/extract/LabelExtraction.h"
#include "tools/extract/ScriptEdit.h"
#include "tools/files/Files.h"
#include "tools/texts/CodePage.h"
#include "tools/texts/StringModule.h"

namespace {

constexpr const char* kHelp = R"(tavrincheck extract: moves literal labels into a string table script

  tavrincheck extract FILE --from N [--rc SCRIPT] [--write]

Each label of FILE without a placeholder, and its title, becomes a text of the script, and a placeholder takes
its place; a mark % stays in the file. All else keeps every byte. Without --write nothing is written: what
would change is printed as a diff.

  --from N       the first number for a new text, 1 to 65535; numbers that are taken are left out
  --rc SCRIPT    the script that the texts are added to, to its last table in the language of its first; one
                 that is not there is made (FILE with the ending .rc). A text that it has already is used again
  --write        write both files
  --help         print this text
)";

struct SOptions {
    std::optional<std::string> file;
    std::optional<std::string> script;
    unsigned firstNumber = 0;  // 0: not given
    bool write = false;
    bool help = false;
};

void TakeOption(SOptions& options, CArguments& arguments) {
    const std::string& name = arguments.Current();
    if (name == "--from") {
        options.firstNumber = static_cast<unsigned>(
            arguments.IntValue("a number from 1 to 65535", 1, tavrin::itemdlg::kHighestTextNumber));
    } else if (name == "--rc") {
        options.script = arguments.Value("a string table script");
    } else if (name == "--write") {
        arguments.ExpectNoValue();
        options.write = true;
    } else if (name == "--help" || name == "-h") {
        arguments.ExpectNoValue();
        options.help = true;
    } else {
        arguments.FailUnknown();
    }
}

SOptions ParseOptions(const std::vector<std::string>& arguments) {
    SOptions options;
    for (CArguments rest(arguments); rest.Next();) {
        if (rest.IsOption()) {
            TakeOption(options, rest);
        } else if (options.file) {
            throw CToolError("one file is taken at a time, not both '" + *options.file + "' and '" +
                             rest.Current() + "'");
        } else {
            options.file = rest.Current();
        }
    }
    if (options.help) {
        return options;
    }
    if (!options.file) {
        throw CToolError("there is nothing to extract from: name a template, or see --help");
    }
    if (options.firstNumber == 0) {
        throw CToolError("--from is missing: give the number for the first text, such as --from 1501");
    }
    return options;
}

// A file before and after.
struct SChange {
    std::string name;
    bool isNew = false;
    std::vector<std::string> lines;
    std::vector<SLineEdit> edits;

    std::string Diff() const { return UnifiedDiff(isNew ? "/dev/null" : name, name, lines, edits); }
    std::string After() const { return Edited(lines, edits); }
};

std::vector<std::string> Bytes(const std::vector<SFileLine>& lines) {
    std::vector<std::string> bytes;
    bytes.reserve(lines.size());
    for (const SFileLine& line : lines) {
        bytes.push_back(BytesOf(line.text) + line.ending);
    }
    return bytes;
}

// The script's bytes; nothing when it has to be made.
std::optional<std::string> ReadScript(const std::string& name, const std::string& templateName) {
    if (!std::filesystem::exists(PathOf(name))) {
        return std::nullopt;
    }
    if (std::filesystem::equivalent(PathOf(name), PathOf(templateName))) {
        throw CToolError(name + ": this is the template itself: name a string table script with --rc");
    }
    std::string bytes = ReadBytes(name);
    if (LooksLikeModule(bytes)) {
        throw CToolError(name + ": texts are not added to a module: name the script that it is made from");
    }
    return bytes;
}

SChange ScriptChange(const std::string& name, const std::optional<std::string>& script,
                     const std::string& templateName, const std::vector<SExtractedText>& texts) {
    if (script) {
        return {name, false, LinesWithEnds(*script), EditsOfScript(name, *script, texts)};
    }
    return {name, true, {}, {{0, 0, LinesWithEnds(NewScript(templateName, texts))}}};
}

}  // namespace

int RunExtract(const std::vector<std::string>& arguments) {
    const SOptions options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    const std::string scriptName =
        options.script.value_or(NameOf(PathOf(*options.file).replace_extension(".rc")));
    const std::vector<SFileLine> lines = SplitLines(ReadBytes(*options.file));
    CTextTable table;
    const std::optional<std::string> script = ReadScript(scriptName, *options.file);
    if (script) {
        table.ReadBytes(scriptName, *script);
    }
    const SExtraction extraction = ExtractLabels(lines, options.firstNumber, KnownTexts(table));
    for (const std::string& note : extraction.notes) {
        Print(*options.file + ": " + note + "\n");
    }
    const std::vector<std::string> before = Bytes(lines);
    const SChange templateChange = {*options.file, false, before,
                                    EditsBetween(before, Bytes(extraction.lines))};
    if (templateChange.edits.empty()) {
        Print(*options.file + ": there is no literal label to move\n");
        return 0;
    }
    std::vector<SChange> changes;
    if (!extraction.newTexts.empty()) {
        // First, so that no placeholder stands in the template without its text.
        changes.push_back(
            ScriptChange(scriptName, script, NameOf(PathOf(*options.file).filename()), extraction.newTexts));
    }
    changes.push_back(templateChange);
    for (const SChange& change : changes) {
        if (options.write) {
            WriteBytes(change.name, change.After());
            Print(change.name + ": written\n");
        } else {
            Print(change.Diff());
        }
    }
    Print("The dialog reads the working file: what writes it must write the same placeholders.\n");
    if (!options.write) {
        Print("Nothing was written: --write does it.\n");
    }
    return 0;
}
