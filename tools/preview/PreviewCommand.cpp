#include "tools/preview/PreviewCommand.h"

#include <cstddef>
#include <filesystem>
#include <limits>
#include <optional>
#include <set>
#include <utility>

#include "devhost/units/LinearUnits.h"
#include "itemdlg/ItemFiles.h"
#include "tools/cmdline/Arguments.h"
#include "tools/cmdline/Output.h"
#include "tools/files/Files.h"
#include "tools/files/ItemName.h"
#include "tools/lines/FileLines.h"
#include "tools/preview/ItemPreview.h"
#include "tools/preview/PreviewReport.h"
#include "tools/texts/CodePage.h"
#include "tools/texts/TextTable.h"

namespace {

constexpr const char* kHelp = R"(tavrincheck preview: shows the item dialog as text, and what OK would write

  tavrincheck preview [OPTIONS] FILE

The dialog is filled from FILE. With NAME_TMP.TXT that is the working file, and OK writes NAME.TXT beside it
too. With any other file, a template, the working file is taken to be a copy of it, as item routines write it.

  --texts FILE         the texts that placeholders stand for: a string table script or a TavrinRes.dll;
                       repeatable; with several languages the first is shown. Without this option placeholders
                       are shown as they stand
  --scale X            the factor between the values in the files and those shown (1)
  --mode N             the mode; 1 makes labels with the mark % read-only (0)
  --lunits N           the drawing's LUNITS, 1 to 5: how distances are shown (2)
  --luprec N           the drawing's LUPREC, 0 to 8 (4)
  --set NUMBER=VALUE   types a value into the row of the parameter with that number, as it is shown; repeatable
  --help               print this text
)";

struct SOptions {
    std::optional<std::string> file;
    std::vector<std::string> texts;
    std::vector<std::pair<std::string, std::string>> values;
    double scale = 1.0;
    int mode = 0;
    int units = LU_DECIMAL;
    int precision = 4;
    bool help = false;
};

std::pair<std::string, std::string> Assignment(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        throw CToolError("--set does not take '" + text + "': give NUMBER=VALUE, such as 1=900");
    }
    return {text.substr(0, equals), text.substr(equals + 1)};
}

void TakeOption(SOptions& options, CArguments& arguments) {
    const std::string& name = arguments.Current();
    if (name == "--texts") {
        options.texts.push_back(arguments.Value("a string table script or a DLL"));
    } else if (name == "--scale") {
        options.scale = arguments.RealValue("a number, such as 0.001");
    } else if (name == "--mode") {
        constexpr int kLowest = std::numeric_limits<short>::min();
        constexpr int kHighest = std::numeric_limits<short>::max();
        options.mode = arguments.IntValue("a whole number, such as 1", kLowest, kHighest);
    } else if (name == "--lunits") {
        options.units = arguments.IntValue("1 to 5", LU_SCIENTIFIC, LU_FRACTIONAL);
    } else if (name == "--luprec") {
        options.precision = arguments.IntValue("0 to 8", 0, kMaxLinearPrecision);
    } else if (name == "--set") {
        options.values.push_back(Assignment(arguments.Value("NUMBER=VALUE, such as 1=900")));
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
            throw CToolError("one file is previewed at a time, not both '" + *options.file + "' and '" +
                             rest.Current() + "'");
        } else {
            options.file = rest.Current();
        }
    }
    if (!options.file && !options.help) {
        throw CToolError("there is nothing to preview: name a file, or see --help");
    }
    return options;
}

SPreviewFile ReadLines(const std::string& name) {
    return {name, SplitLines(ReadBytes(name))};
}

SPreviewInput ReadInput(const std::string& file) {
    SPreviewInput input;
    std::string base;
    if (const std::optional<std::string> item = WithoutEnding(file, tavrin::itemdlg::kWorkingFileEnding)) {
        base = *item;
        input.workingFile = ReadLines(file);
        input.templateName = base + Utf8Text(tavrin::itemdlg::kTemplateFileEnding);
        if (std::filesystem::is_regular_file(PathOf(input.templateName))) {
            input.templateFile = ReadLines(input.templateName);
        }
    } else {
        base = WithoutEnding(file, tavrin::itemdlg::kTemplateFileEnding).value_or(file);
        input.templateName = file;
        input.templateFile = ReadLines(file);
        input.workingFile = {base + Utf8Text(tavrin::itemdlg::kWorkingFileEnding), input.templateFile->lines};
    }
    const std::string picture = base + Utf8Text(tavrin::itemdlg::kPictureEnding);
    if (std::filesystem::is_regular_file(PathOf(picture))) {
        input.picture = picture;
    }
    return input;
}

// What placeholders stand for; takes down the numbers that no file has.
tavrin::itemdlg::TextLookup Lookup(const CTextTable& texts, std::set<unsigned>& missing) {
    if (texts.Files().empty()) {
        return [](unsigned number) {
            return number == tavrin::itemdlg::kHeaderPrefixText ? std::wstring()
                                                                : L"<<" + std::to_wstring(number) + L">>";
        };
    }
    return [&texts, &missing](unsigned number) {
        if (texts.Find(number) == nullptr) {
            missing.insert(number);
        }
        return texts.Load(number);
    };
}

std::string MissingTexts(const std::set<unsigned>& missing) {
    std::string text;
    for (const unsigned number : missing) {
        text += "text " + std::to_string(number) + " is not there: it shows as nothing\n";
    }
    return text.empty() ? text : "\n" + text;
}

// The numbers of parameters are digits; what else is typed names none.
std::wstring Wide(const std::string& text) {
    return DecodeText(text, kUtf8).value_or(std::wstring(1, L'\xFFFD'));
}

}  // namespace

int RunPreview(const std::vector<std::string>& arguments) {
    const SOptions options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    CTextTable texts;
    for (const std::string& file : options.texts) {
        texts.ReadFile(file);
    }
    const SPreviewInput input = ReadInput(*options.file);
    std::set<unsigned> missing;
    SPreviewSettings settings;
    settings.scale = options.scale;
    settings.mode = options.mode;
    settings.texts = Lookup(texts, missing);
    settings.distanceText = [&options](double value) {
        return FormatLinear(value, options.units, options.precision).value_or(std::wstring());
    };
    CItemPreview preview(TextsOf(input.workingFile.lines), settings);
    for (const auto& [number, value] : options.values) {
        preview.SetValue(Wide(number), Wide(value));
    }
    Print(PreviewReport(input, preview) + MissingTexts(missing));
    return 0;
}
