#include "tools/tavrincheck/NewCommand.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "cmdline/CommandLine.h"
#include "itemdlg/TemplateText.h"
#include "tools/files/Files.h"
#include "tools/files/Folders.h"
#include "tools/newitem/NewItem.h"
#include "tools/tavrincheck/Output.h"
#include "tools/tavrincheck/TextsCommand.h"
#include "tools/texts/LanguageId.h"
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

using cmdline::CCommandLine;

namespace {

namespace fs = std::filesystem;

constexpr const char* kHelp = R"(tavrincheck new: writes the files of a new item

  tavrincheck new NAME [--in FOLDER] [--from N] [--machine x64|x86]

Writes into FOLDER/NAME a template with two parameters, a picture, the slides of two variants and a LISP routine that
draws a rectangle. Its texts, and those of item.lsp's checks, are added to each script
FOLDER/texts/TavrinRes.LANGUAGE.rc, which is then compiled into FOLDER/texts/LANGUAGE/TavrinRes.dll. A missing script
is created in English. So are the files that all items share: item.lsp, logo.png, empty.png. The item can be tried at
once: DevHost.exe --items FOLDER.

  --in FOLDER    the folder of the items (default: the current folder)
  --from N       the first number for its texts; where a text of the folder has one of the next 99, N + 100 is tried,
                 and so on (default: 3001, above those of the sample items). Items that one host loads need
                 different numbers
  --machine M    x64 for a 64-bit DevHost, x86 for a 32-bit one (default: that of this program, x64 under Linux)
  -h, --help     print this help
)";

struct Options {
    std::vector<std::string> names;
    std::string folder = ".";
    int firstText = 3001;
    EMachine machine = OwnMachine();
    bool help = false;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    CCommandLine commandLine;
    commandLine.AddText("--in", "samples", options.folder);
    commandLine.AddNumber("--from", 3001, {1, itemdlg::kHighestTextNumber}, options.firstText);
    commandLine.AddOption("--machine", "x64",
                          [&](const std::string& value) { options.machine = MachineOf(value); });
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    commandLine.AddArguments(options.names);
    commandLine.Parse(arguments);
    if (!options.help && options.names.size() != 1) {
        throw CToolError("new takes one name, not " + std::to_string(options.names.size()) +
                         ": for example tavrincheck new shelf, or see --help");
    }
    return options;
}

// A script of the folder, "TavrinRes.it.rc" or "TavrinRes.rc".
struct Script {
    std::string name;
    std::string language;  // "it", empty for "TavrinRes.rc"
    std::string bytes;
    CTextTable texts;

    std::string Module() const {
        return "texts/" + (language.empty() ? language : language + "/") + "TavrinRes.dll";
    }
};

Script ScriptOf(const std::string& folder, const std::string& file, std::string bytes) {
    constexpr std::string_view kStem = "TavrinRes.";
    const std::string stem = NameOf(PathOf(file).stem());
    Script script{
        "texts/" + file, stem.size() > kStem.size() ? stem.substr(kStem.size()) : "", std::move(bytes), {}};
    script.texts.ReadBytes(NameOf(PathOf(folder) / PathOf(script.name)), script.bytes);
    return script;
}

std::vector<Script> ReadScripts(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code error;
    for (fs::directory_iterator entry(PathOf(folder) / "texts", error), end; entry != end;
         entry.increment(error)) {
        const std::string file = NameOf(entry->path().filename());
        if (file == "TavrinRes.rc" || (file.starts_with("TavrinRes.") && file.ends_with(".rc"))) {
            files.push_back(file);
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<Script> scripts;
    for (const std::string& file : files) {
        scripts.push_back(ScriptOf(folder, file, ReadBytes(NameOf(PathOf(folder) / "texts" / PathOf(file)))));
    }
    if (scripts.empty()) {
        scripts.push_back(ScriptOf(folder, "TavrinRes.en.rc", NewTextScript()));
    }
    return scripts;
}

// What the items' own item.lsp says, or the one that will be written.
std::string SharedRoutineIn(const std::string& folder) {
    const fs::path routine = PathOf(folder) / "item.lsp";
    return fs::exists(routine) ? ReadBytes(NameOf(routine)) : kSharedRoutine;
}

// The script with the texts of the new item, and with those of item.lsp that it lacks.
Script WithTexts(const std::string& folder, const Script& script, const std::string& item,
                 unsigned firstText) {
    const unsigned language = script.texts.Languages().empty()
                                  ? kDefaultLanguage
                                  : script.texts.LanguageIdOf(0).value_or(kDefaultLanguage);
    std::vector<NewText> texts = TextsOfNewItem(item, firstText, language);
    for (NewText& text : TextsOfSharedRoutine(SharedRoutineIn(folder), language)) {
        if (script.texts.Find(text.number) == nullptr) {
            texts.push_back(std::move(text));
        }
    }
    const std::vector<LineEdit> edits =
        EditsOfScript(NameOf(PathOf(folder) / PathOf(script.name)), script.bytes, texts);
    return ScriptOf(folder, NameOf(PathOf(script.name).filename()),
                    Edited(LinesWithEnds(script.bytes), edits));
}

// All that is to be written, in this order: where a module cannot be written, the scripts are as they were,
// and the next attempt takes the same numbers.
std::vector<NewFile> FilesOf(const Options& options, const std::string& item) {
    const std::vector<Script> scripts = ReadScripts(options.folder);
    std::vector<CTextTable> tables;
    for (const Script& script : scripts) {
        tables.push_back(script.texts);
    }
    const unsigned firstText = FirstFreeText(tables, static_cast<unsigned>(options.firstText));
    std::vector<NewFile> files;
    std::vector<NewFile> changedScripts;
    for (const Script& script : scripts) {
        const Script changed = WithTexts(options.folder, script, item, firstText);
        CheckModuleName(NameOf(PathOf(options.folder) / PathOf(script.Module())));
        files.push_back({changed.Module(), ModuleOf(changed.texts, options.machine)});
        changedScripts.push_back({changed.name, changed.bytes});
    }
    std::move(changedScripts.begin(), changedScripts.end(), std::back_inserter(files));
    for (NewFile& file : FilesOfNewItem(item, firstText)) {
        files.push_back(std::move(file));
    }
    for (NewFile& file : SharedFiles()) {
        if (!fs::exists(PathOf(options.folder) / PathOf(file.name))) {
            files.push_back(std::move(file));
        }
    }
    return files;
}

void CheckFolders(const std::string& folder, const std::string& item) {
    if (const std::string objection = ObjectionToName(item); !objection.empty()) {
        throw CToolError("'" + item + "': " + objection);
    }
    if (!fs::is_directory(PathOf(folder))) {
        throw CToolError(folder + ": there is no such folder");
    }
    if (fs::exists(PathOf(folder) / PathOf(item))) {
        throw CToolError(NameOf(PathOf(folder) / PathOf(item)) + ": it exists already, choose another name");
    }
}

void Write(const std::string& folder, const NewFile& file) {
    const fs::path path = PathOf(folder) / PathOf(file.name);
    CreateFolderOf(NameOf(path));
    WriteBytes(NameOf(path), file.bytes);
    Print(NameOf(path.lexically_normal()) + "\n");
}

}  // namespace

int RunNew(const std::vector<std::string>& arguments) {
    const Options options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    const std::string& item = options.names.front();
    CheckFolders(options.folder, item);
    for (const NewFile& file : FilesOf(options, item)) {
        Write(options.folder, file);
    }
    Print("To try it: DevHost.exe --items " + options.folder + ", then Items > " + item + ".\n" +
          "After a change of a text: tavrincheck texts SCRIPT -o MODULE with the names above, then F5 in "
          "DevHost.\n");
    return 0;
}

}  // namespace tavrin::tools
