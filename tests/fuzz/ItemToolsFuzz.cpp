// Previewing the dialog on a file, and moving its literals into a script.
#include <cstdint>
#include <string>

#include "tests/fuzz/Fuzz.h"
#include "tools/files/Files.h"
#include "tools/tavrincheck/LabelExtraction.h"
#include "tools/tavrincheck/PreviewReport.h"
#include "tools/texts/ScriptEdit.h"

using namespace tavrin::tools;

using namespace tavrin::itemdlg;

namespace {

CItemPreview PreviewOf(const std::vector<FileLine>& lines, const CTextTable& texts, int mode) {
    PreviewSettings settings;
    settings.mode = mode;
    settings.texts = [&texts](unsigned number) { return texts.Load(number); };
    settings.distanceText = [](double value) { return std::to_wstring(value); };
    return CItemPreview(TextsOf(lines), settings);
}

// All that the dialog shows.
std::wstring Shown(const CItemPreview& preview) {
    std::wstring shown = preview.Contents().title.value_or(L"") + L"\n" + preview.Contents().header + L"\n";
    for (const ItemParameter& parameter : preview.Contents().parameters) {
        shown += parameter.record.label + L"|" + preview.ValueTextOf(parameter) + L"|" +
                 std::to_wstring(parameter.row * 2 + (parameter.editable ? 1 : 0)) + L"\n";
    }
    return shown;
}

void CheckExtraction(const std::vector<FileLine>& lines, const CTextTable& before, int mode) {
    const Extraction extraction = ExtractLabels(lines, 1, KnownTexts(before));
    const std::string script = NewScript("a.TXT", extraction.newTexts);
    CTextTable after = before;
    after.ReadBytes("new.rc", script);
    Require(Shown(PreviewOf(extraction.lines, after, mode)) == Shown(PreviewOf(lines, before, mode)),
            "the dialog shows the same once literals are texts");
    const Extraction again = ExtractLabels(extraction.lines, 1, KnownTexts(after));
    Require(again.newTexts.empty() && TextsOf(again.lines) == TextsOf(extraction.lines) &&
                again.notes == extraction.notes,
            "a second time moves nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const int mode = data[0] % 2;
    const std::vector<FileLine> lines = SplitLines(Bytes(data + 1, size - 1));
    CTextTable texts;
    texts.ReadBytes("a.rc", "STRINGTABLE { 1 \"Width\" 2 \"a%\" 1363 \"P\" 1501 \"<<2>>\" }");
    CItemPreview preview = PreviewOf(lines, texts, mode);
    PreviewInput input;
    input.workingFile = {"a_TMP.TXT", lines};
    input.templateFile = input.workingFile;
    Require(!PreviewReport(input, preview).empty(), "a preview says something");
    for (const ItemParameter& parameter : preview.Contents().parameters) {
        try {
            preview.SetValue(parameter.record.number, L"2");
        } catch (const CToolError&) {
            Require(
                parameter.row != PR_SHOWN || !parameter.editable || preview.Contents().parameters.size() > 1,
                "a row of its own takes a value");
        }
    }
    CheckExtraction(lines, texts, mode);
    return 0;
}
