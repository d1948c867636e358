// CTextTable: texts by number and language, from scripts and modules.
#include "tools/texts/TextTable.h"

#include <gtest/gtest.h>

#include "tests/unit/tools/ModuleImage.h"
#include "tools/files/Files.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

std::string ErrorOf(CTextTable& table, const std::string& name, const std::string& bytes) {
    try {
        table.ReadBytes(name, bytes);
        return "(none)";
    } catch (const CToolError& error) {
        return error.what();
    }
}

TEST(TextTable, TheSampleTextsExistInBothLanguages) {
    CTextTable table;
    table.ReadFile(TAVRIN_SAMPLES "/texts/TavrinRes.it.rc");
    table.ReadFile(TAVRIN_SAMPLES "/texts/TavrinRes.en.rc");
    ASSERT_EQ(table.Languages(), (std::vector<std::string>{"LANG_ITALIAN, SUBLANG_ITALIAN",
                                                           "LANG_ENGLISH, SUBLANG_ENGLISH_UK"}));
    EXPECT_EQ(table.Load(1504), L"Profondit\u00E0 telaio");
    ASSERT_NE(table.Find(1504, 1), nullptr);
    EXPECT_EQ(table.Find(1504, 1)->text, L"Frame depth");
    EXPECT_EQ(table.Files()[table.Find(1504, 1)->file], TAVRIN_SAMPLES "/texts/TavrinRes.en.rc");
}

TEST(TextTable, AModuleAndItsScriptGiveTheSameTexts) {
    CTextTable module;
    module.ReadBytes("a.dll", CModuleImage::Make({{1, 0x0410, {u"a", u"b"}}}));
    CTextTable script;
    script.ReadBytes("a.rc", "LANGUAGE 16, 1 STRINGTABLE { 0 \"a\" 1 \"b\" }");
    EXPECT_EQ(module.Languages(), script.Languages());
    EXPECT_EQ(module.Load(1), script.Load(1));
    EXPECT_EQ(script.Find(1)->line, 1U);
    EXPECT_EQ(module.Find(1)->line, 0U);
}

TEST(TextTable, AMissingTextIsEmpty) {
    const CTextTable table;
    EXPECT_EQ(table.Load(7), L"");
    EXPECT_EQ(table.Find(7), nullptr);
}

TEST(TextTable, ATextIsNotFoundInALanguageThatLacksIt) {
    CTextTable table;
    table.ReadBytes("a.rc", "LANGUAGE 1, 1 STRINGTABLE { 1 \"a\" } LANGUAGE 2, 1 STRINGTABLE { 2 \"b\" }");
    EXPECT_EQ(table.Find(2, 0), nullptr);
    ASSERT_NE(table.Find(2), nullptr);
    EXPECT_EQ(table.Find(2)->language, 1U);
}

TEST(TextTable, ALoadedTextIsCutAsInTheModule) {
    CTextTable table;
    table.ReadBytes("a.rc", "STRINGTABLE { 1 \"" + std::string(256, 'x') + "\" 2 \"a\\0b\" }");
    EXPECT_EQ(table.Load(1), std::wstring(255, L'x'));
    EXPECT_EQ(table.Find(1)->text.size(), 256U);
    EXPECT_EQ(table.Load(2), L"a");
}

TEST(TextTable, ADuplicateTextIsRefusedAndNothingIsAdded) {
    CTextTable table;
    table.ReadBytes("a.rc", "LANGUAGE 1, 1\nSTRINGTABLE { 1 \"a\" }");
    EXPECT_EQ(ErrorOf(table, "b.rc", "LANGUAGE 1, 1\nSTRINGTABLE {\n2 \"b\"\n1 \"c\" }"),
              "b.rc:4: text 1 already exists, in a.rc:2; both are in language 0x0401: is a line "
              "LANGUAGE wrong, or does another item use the number?");
    EXPECT_EQ(ErrorOf(table, "c.rc", "STRINGTABLE {\n1 \"b\"\n1 \"c\" }"),
              "c.rc:3: text 1 already exists, in c.rc:2");
    EXPECT_EQ(table.Texts().size(), 1U);
    EXPECT_EQ(table.Files().size(), 1U);
}

TEST(TextTable, EachScriptWithoutALanguageCountsAsALanguage) {
    CTextTable table;
    table.ReadBytes("a.rc", "STRINGTABLE { 1 \"a\" }");
    table.ReadBytes("b.rc", "STRINGTABLE { 1 \"b\" }");
    EXPECT_EQ(table.Languages(), (std::vector<std::string>{"the language of a.rc", "the language of b.rc"}));
}

TEST(TextTable, AMissingFileIsRefused) {
    CTextTable table;
    EXPECT_THROW(table.ReadFile("no such file.rc"), CToolError);
}

TEST(TextTable, AFileWithoutTextsIsRefused) {
    CTextTable table;
    EXPECT_THROW(table.ReadFile("/dev/null"), CToolError);
}

TEST(TextTable, TheColumnOfATextIsTheColumnOfItsNumber) {
    CTextTable table;
    table.ReadBytes("a.rc", "\xEF\xBB\xBFSTRINGTABLE {1 \"a\\\nb\" 2 \"c\"\n\t3 \"d\" }");
    std::vector<std::size_t> positions;
    for (const TextEntry& text : table.Texts()) {
        positions.insert(positions.end(), {text.line, text.column});
    }
    EXPECT_EQ(positions, (std::vector<std::size_t>{1, 14, 2, 4, 3, 2}));
}

}  // namespace
