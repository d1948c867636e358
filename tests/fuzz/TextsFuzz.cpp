// Reading scripts and modules of texts, and adding texts to a script.
#include <algorithm>
#include <cstdint>
#include <string>

#include "tests/fuzz/Fuzz.h"
#include "tools/files/Files.h"
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/StringScript.h"
#include "tools/texts/TextTable.h"

using namespace tavrin::tools;

namespace {

const std::vector<NewText> kTexts = {{60001, L"new \"text\" \\"}, {60002, L"\u00E0\u0080\t"}};

// A script takes every new text, and all that it had stays.
void CheckAdding(const std::string& script) {
    CTextTable before;
    CTextTable after;
    try {
        before.ReadBytes("a.rc", script);
        if (before.Find(60001) != nullptr || before.Find(60002) != nullptr ||
            ReadStringScript("a.rc", script).isUtf16) {
            return;
        }
    } catch (const CToolError&) {
        return;
    }
    after.ReadBytes("a.rc", Edited(LinesWithEnds(script), EditsOfScript("a.rc", script, kTexts)));
    Require(after.Texts().size() == before.Texts().size() + kTexts.size(), "just the new texts are added");
    for (const NewText& text : kTexts) {
        Require(after.Load(text.number) == text.text, "a new text reads as it was given");
    }
    // The new texts may come first and so may their language.
    const auto& languages = after.Languages();
    for (const TextEntry& text : before.Texts()) {
        const auto language =
            std::find(languages.begin(), languages.end(), before.Languages()[text.language]);
        const TextEntry* const found =
            after.Find(text.number, static_cast<std::size_t>(language - languages.begin()));
        Require(found != nullptr && found->text == text.text, "the texts that were there stay");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(Bytes(data, size));
    CTextTable table;
    try {
        table.ReadBytes("a", bytes);
    } catch (const CToolError&) {
        Require(table.Texts().empty() && table.Files().empty(), "a file that is refused adds nothing");
    }
    for (const TextEntry& text : table.Texts()) {
        Require(text.number <= 0xFFFF && text.language < table.Languages().size(),
                "texts have a valid number and language");
        Require(table.Load(text.number).size() <= CTextTable::kLongestText, "a loaded text is cut");
    }
    if (!bytes.starts_with("MZ")) {
        CheckAdding(bytes);
    }
    return 0;
}
