#include "tools/tavrincheck/PreviewCommand.h"

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <limits>
#include <optional>
#include <set>
#include <utility>

#include "cmdline/CommandLine.h"
#include "cmdline/ParseNumber.h"
#include "encoding/Encoding.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/FileLines.h"
#include "tools/files/Files.h"
#include "tools/files/ItemName.h"
#include "tools/tavrincheck/ItemPreview.h"
#include "tools/tavrincheck/Output.h"
#include "tools/tavrincheck/PreviewReport.h"
#include "tools/texts/TextTable.h"
#include "units/LinearUnits.h"

namespace tavrin::tools {

using cmdline::CCommandLine;
using cmdline::InvalidValue;

namespace {

constexpr const char* kHelp = R"(tavrincheck preview: shows the item dialog as text, and what OK would write

  tavrincheck preview [OPTIONS] FILE

NAME_TMP.TXT is a working file: the dialog shows it, and OK also updates the template NAME.TXT beside it. Any other
FILE is a template; its working file is assumed to be a copy of it, which is what item routines write.

  --texts FILE         the texts of placeholders: a string table script or a TavrinRes.dll; repeatable, the
                       first language is shown. Without this option placeholders are shown as they are
  --scale X            the scale of the call: the dialog shows the values of the file times X (default: 1)
  --mode N             the mode of the call; with 1, rows whose label ends in % are read-only (default: 0)
  --lunits N           the drawing's LUNITS for distances, 1 to 5 (default: 2)
  --luprec N           the drawing's LUPREC for distances, 0 to 8 (default: 4)
  --set NUMBER=VALUE   type a value into the row of the parameter with that number; repeatable. What the dialog
                       makes of it is printed first, unless that is what was typed
  -h, --help           print this help
)";

struct Options {
    std::vector<std::string> files;
    std::vector<std::string> texts;
    std::vector<std::pair<std::string, std::string>> values;
    double scale = 1.0;
    int mode = 0;
    int units = units::LU_DECIMAL;
    int precision = 4;
    bool help = false;
};

double ScaleOf(const std::string& text) {
    const std::optional<double> number = cmdline::ParseNumber<double>(text);
    if (!number || !std::isfinite(*number)) {
        throw InvalidValue("--scale", text, "a number, for example 0.001");
    }
    return *number;
}

std::pair<std::string, std::string> Assignment(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        throw InvalidValue("--set", text, "NUMBER=VALUE, for example 1=900");
    }
    return {text.substr(0, equals), text.substr(equals + 1)};
}

Options ParseOptions(const std::vector<std::string>& arguments) {
    using Limits = std::numeric_limits<short>;
    Options options;
    CCommandLine commandLine;
    commandLine.AddTexts("--texts", "TavrinRes.rc", options.texts);
    commandLine.AddOption("--scale", "0.001",
                          [&](const std::string& value) { options.scale = ScaleOf(value); });
    commandLine.AddNumber("--mode", 1, {Limits::min(), Limits::max()}, options.mode);
    commandLine.AddNumber("--lunits", 4, {units::LU_SCIENTIFIC, units::LU_FRACTIONAL}, options.units);
    commandLine.AddNumber("--luprec", 2, {0, units::kMaxLinearPrecision}, options.precision);
    commandLine.AddOption("--set", "1=900",
                          [&](const std::string& value) { options.values.push_back(Assignment(value)); });
    commandLine.AddExitFlag("--help", options.help);
    commandLine.AddExitFlag("-h", options.help);
    commandLine.AddArguments(options.files);
    commandLine.Parse(arguments);
    if (options.files.size() != 1 && !options.help) {
        throw CToolError("a preview takes one file, not " + std::to_string(options.files.size()) +
                         ", see --help");
    }
    return options;
}

PreviewFile ReadLines(const std::string& name) {
    return {name, SplitLines(ReadBytes(name))};
}

PreviewInput ReadInput(const std::string& file) {
    PreviewInput input;
    std::string base;
    if (const std::optional<std::string> item = WithoutEnding(file, itemdlg::kWorkingFileEnding)) {
        base = *item;
        input.workingFile = ReadLines(file);
        input.templateName = base + encoding::EncodeUtf8(itemdlg::kTemplateFileEnding);
        if (std::filesystem::is_regular_file(PathOf(input.templateName))) {
            input.templateFile = ReadLines(input.templateName);
        }
    } else {
        base = WithoutEnding(file, itemdlg::kTemplateFileEnding).value_or(file);
        input.templateName = file;
        input.templateFile = ReadLines(file);
        input.workingFile = {base + encoding::EncodeUtf8(itemdlg::kWorkingFileEnding),
                             input.templateFile->lines};
    }
    const std::string picture = base + encoding::EncodeUtf8(itemdlg::kPictureEnding);
    if (std::filesystem::is_regular_file(PathOf(picture))) {
        input.picture = picture;
    }
    return input;
}

// The texts of placeholders; collects the numbers that no file has.
itemdlg::TextLookup Lookup(const CTextTable& texts, std::set<unsigned>& missing) {
    if (texts.Files().empty()) {
        return [](unsigned number) {
            return number == itemdlg::kHeaderPrefixText ? std::wstring()
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
        text += "text " + std::to_string(number) + " is missing and shown as an empty text\n";
    }
    return text.empty() ? text : "\n" + text;
}

// Invalid UTF-8 becomes a text that is no number.
std::wstring Wide(const std::string& text) {
    return encoding::DecodeUtf8(text).value_or(std::wstring(1, L'\xFFFD'));
}

}  // namespace

int RunPreview(const std::vector<std::string>& arguments) {
    const Options options = ParseOptions(arguments);
    if (options.help) {
        Print(kHelp);
        return 0;
    }
    CTextTable texts;
    for (const std::string& file : options.texts) {
        texts.ReadFile(file);
    }
    const PreviewInput input = ReadInput(options.files.front());
    std::set<unsigned> missing;
    PreviewSettings settings;
    settings.scale = options.scale;
    settings.mode = options.mode;
    settings.texts = Lookup(texts, missing);
    settings.distanceText = [&options](double value) {
        return units::FormatLinear(value, options.units, options.precision).value_or(std::wstring());
    };
    CItemPreview preview(TextsOf(input.workingFile.lines), settings);
    std::string remarks;
    for (const auto& [number, value] : options.values) {
        const std::string remark = preview.SetValue(Wide(number), Wide(value));
        remarks += remark.empty() ? remark : remark + "\n";
    }
    Print((remarks.empty() ? remarks : remarks + "\n") + PreviewReport(input, preview) +
          MissingTexts(missing));
    return 0;
}

}  // namespace tavrin::tools
