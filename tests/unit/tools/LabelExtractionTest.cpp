// Taking literal labels out of templates.
#include "tools/tavrincheck/LabelExtraction.h"

#include <gtest/gtest.h>

#include "itemdlg/ItemContents.h"
#include "tests/items/ItemGenerator.h"
#include "tools/files/Files.h"
#include "tools/texts/ScriptEdit.h"

using namespace tavrin::itemdlg;
using namespace tavrin::tools;

namespace {

std::string Bytes(const std::vector<FileLine>& lines) {
    std::string bytes;
    for (const FileLine& line : lines) {
        bytes += BytesOf(line.text) + line.ending;
    }
    return bytes;
}

Extraction Extract(const std::string& file, unsigned first = 1501, const KnownTextNumbers& known = {}) {
    return ExtractLabels(SplitLines(file), first, known);
}

// The new texts: "1501=Width|".
std::wstring Texts(const Extraction& extraction) {
    std::wstring texts;
    for (const NewText& text : extraction.newTexts) {
        texts += std::to_wstring(text.number) + L"=" + text.text + L"|";
    }
    return texts;
}

TEST(LabelExtraction, ALiteralBecomesAPlaceholderAndAllElseStays) {
    const Extraction extraction =
        Extract("x\r\n<<2001>>\nVAR\n$1  =\"Width\"D 900 \r\n$2 = \"a \"b\"\"R5\nEND_VAR\n$3 = \"c\"R 1");
    EXPECT_EQ(Bytes(extraction.lines),
              "x\r\n<<2001>>\nVAR\n$1  =\"<<1501>>\"D 900 \r\n$2 = \"<<1502>>\"R5\nEND_VAR\n$3 = \"c\"R 1");
    EXPECT_EQ(Texts(extraction), L"1501=Width|1502=a \"b\"|");
    EXPECT_TRUE(extraction.notes.empty());
}

TEST(LabelExtraction, TheMarkStaysBehindThePlaceholder) {
    const Extraction extraction = Extract("x\n\nVAR\n$1 = \"Share in %%\"R 1\n");
    EXPECT_EQ(Bytes(extraction.lines), "x\n\nVAR\n$1 = \"<<1501>>%\"R 1\n");
    EXPECT_EQ(Texts(extraction), L"1501=Share in %|");
}

TEST(LabelExtraction, TheTitleIsTakenToo) {
    const Extraction extraction = Extract("x\nHinged door\n");
    EXPECT_EQ(Bytes(extraction.lines), "x\n<<1501>>\n");
    EXPECT_EQ(Texts(extraction), L"1501=Hinged door|");
}

TEST(LabelExtraction, NumbersInSignsAreTakenWhetherTheyCountOrNot) {
    const Extraction extraction = Extract(
        "<<<<1501>>\n<<1502>> <<x <<1503>>\nVAR\n<<1504>\n$1 = \"Width\"D 1\n$2 = \"<<0>> a\"D <<1505>>\n");
    EXPECT_EQ(Texts(extraction), L"1504=Width|");
    EXPECT_EQ(extraction.notes,
              std::vector<std::string>{
                  "line 6 stays: its value contains a placeholder, which OK would write into the label"});
}

TEST(LabelExtraction, LabelsWithAPlaceholderStay) {
    const std::string file = "x\na <<7>> b\nVAR\n$1 = \"Leaves: <<1503>>\"I 1\n$2 = \"<<1504>>%\"I 1\n";
    const Extraction extraction = Extract(file);
    EXPECT_EQ(Bytes(extraction.lines), file);
    EXPECT_TRUE(extraction.newTexts.empty());
}

TEST(LabelExtraction, TakenNumbersAreSkippedThoseOfPlaceholdersToo) {
    KnownTextNumbers known;
    known.taken = {1501};
    const Extraction extraction =
        Extract("x\n\nVAR\n$1 = \"a\"R 1\n$2 = \"<<1502>> <<01503>>\"R 1\n$3 = \"b\"R 1\n", 1501, known);
    EXPECT_EQ(Texts(extraction), L"1504=a|1505=b|");
}

TEST(LabelExtraction, EqualTextsShareANumber) {
    KnownTextNumbers known;
    known.taken = {40};
    known.texts = {{L"Width", 40}};
    const Extraction extraction =
        Extract("x\n\nVAR\n$1 = \"Width%\"R 1\n$2 = \"a\"R 1\n$3 = \"a\"R 1\n", 1, known);
    EXPECT_EQ(Bytes(extraction.lines),
              "x\n\nVAR\n$1 = \"<<40>>%\"R 1\n$2 = \"<<1>>\"R 1\n$3 = \"<<1>>\"R 1\n");
    EXPECT_EQ(Texts(extraction), L"1=a|");
}

TEST(LabelExtraction, WhatCannotMoveSaysWhy) {
    const auto noteOf = [](const std::string& file) {
        const Extraction extraction = Extract(file);
        EXPECT_EQ(Bytes(extraction.lines), file);
        EXPECT_TRUE(extraction.newTexts.empty());
        return extraction.notes.size() == 1 ? extraction.notes.front() : "(none or several)";
    };
    EXPECT_EQ(noteOf("x\n\nVAR\n$1 = \"\"R 1\n"), "line 4 stays: its label is empty, write one");
    EXPECT_EQ(noteOf("x\n\nVAR\n$1 = \"%\"R 1\n"), "line 4 stays: its label is empty, write one");
    EXPECT_EQ(noteOf("x\n\nVAR\n$1 = \"" + std::string(256, 'x') + "\"R 1\n"),
              "line 4 stays: its text is longer than the 255 characters that the module takes");
    for (const std::string value : {"<<7>>", "<<>>", "<<0>>"}) {
        EXPECT_EQ(noteOf("x\n\nVAR\n$1 = \"a\"R 1 " + value + "\n"),
                  "line 4 stays: its value contains a placeholder, which OK would write into the label");
    }
    EXPECT_EQ(noteOf("x\nVAR\n"),
              "line 2 stays: it is the title and bounds a block, give the file a title line");
    EXPECT_EQ(noteOf("VAR\n$1 = \"a\"R 1\n"),
              "line 2 stays: it is title and parameter at once, give the file a title line");
    EXPECT_EQ(noteOf(std::string("x\na\0b\n", 6)), "line 2 stays: its title contains a null character");
}

TEST(LabelExtraction, NumbersEndAtTheHighest) {
    EXPECT_EQ(Texts(Extract("x\na\n", 65535)), L"65535=a|");
    EXPECT_THROW(Extract("x\na\nVAR\n$1 = \"b\"R 1\n", 65535), CToolError);
}

TEST(LabelExtraction, AScriptsFirstLanguageIsTheOneThatIsKnown) {
    CTextTable table;
    table.ReadBytes("a.rc",
                    "LANGUAGE 1, 1 STRINGTABLE { 0 \"z\" 5 \"a\" } LANGUAGE 2, 1 STRINGTABLE { 6 \"b\" }");
    const KnownTextNumbers known = KnownTexts(table);
    EXPECT_EQ(known.taken, (std::set<unsigned>{0, 5, 6, 1363, 5019}));
    EXPECT_EQ(known.texts, (std::map<std::wstring, unsigned>{{L"a", 5}}));
}

// What the dialog shows of a file, with the texts of a script.
std::wstring Shown(const std::string& file, const CTextTable& texts, int mode) {
    const ItemContents item =
        ReadItem(TextsOf(SplitLines(file)), 1.0, mode, [&](unsigned number) { return texts.Load(number); });
    std::wstring shown = item.title.value_or(L"(none)") + L"\n";
    for (const ItemParameter& parameter : item.parameters) {
        const ParamRecord& record = parameter.record;
        shown += record.number + L"|" + record.label + L"|" + std::to_wstring(record.type) + L"|" +
                 std::to_wstring(record.realValue) + L"|" + std::to_wstring(record.intValue) + L"|" +
                 std::to_wstring(parameter.row) + (parameter.editable ? L"|*\n" : L"|\n");
    }
    return shown;
}

// The dialog on odd files shows the same before and after, through the script as it is written; what is left
// is left again, and no label that was moved is mangled by OK.
TEST(LabelExtraction, TheDialogShowsTheSameAsBefore) {
    const std::string script =
        "#pragma code_page(1252)\r\nSTRINGTABLE\r\nBEGIN\r\n    1363 \"P\"\r\n"
        "    1501 \"Width\"\r\n    1502 \"B\xE0\"\r\n    1503 \"\"\r\nEND\r\n";
    std::size_t moved = 0;
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const std::string file = CItemGenerator(seed).File();
        CTextTable before;
        before.ReadBytes("a.rc", script);
        const Extraction extraction = ExtractLabels(SplitLines(file), 1500, KnownTexts(before));
        const std::string newScript =
            Edited(LinesWithEnds(script), EditsOfScript("a.rc", script, extraction.newTexts));
        CTextTable after;
        after.ReadBytes("a.rc", newScript);
        const std::string newFile = Bytes(extraction.lines);
        for (const int mode : {0, 1}) {
            EXPECT_EQ(Shown(newFile, after, mode), Shown(file, before, mode));
        }
        EXPECT_EQ(after.Texts().size(), before.Texts().size() + extraction.newTexts.size());
        const Extraction again = ExtractLabels(SplitLines(newFile), 1500, KnownTexts(after));
        EXPECT_EQ(Bytes(again.lines), newFile);
        EXPECT_TRUE(again.newTexts.empty());
        EXPECT_EQ(again.notes, extraction.notes);
        moved += extraction.newTexts.size();
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(moved, 1500U);
}

}  // namespace
