// The reader of resource scripts.
#include "tools/texts/StringScript.h"

#include <gtest/gtest.h>

#include "encoding/Encoding.h"
#include "tools/files/Files.h"
#include "tools/texts/CodePage.h"

using namespace tavrin::tools;

namespace {

// The texts of a script: "1501=Width|", one after the other.
std::string Texts(const std::string& script) {
    std::string texts;
    for (const ScriptText& text : ReadStringScript("a.rc", script).texts) {
        texts += std::to_string(text.number) + "=" + tavrin::encoding::EncodeUtf8(text.text) + "|";
    }
    return texts;
}

std::string InTable(const std::string& entries) {
    return "#pragma code_page(65001)\nSTRINGTABLE\nBEGIN\n" + entries + "\nEND\n";
}

std::string ErrorOf(const std::string& script) {
    try {
        ReadStringScript("a.rc", script);
        return "(none)";
    } catch (const CToolError& error) {
        return error.what();
    }
}

TEST(StringScript, TablesHaveWordsOrBracesAround) {
    EXPECT_EQ(
        Texts("STRINGTABLE BEGIN 1 \"a\" 2, \"b\" END stringtable DISCARDABLE { 3 \"c\" } STRINGTABLE {}"),
        "1=a|2=b|3=c|");
}

TEST(StringScript, NumbersAreDecimalHexadecimalOrOctal) {
    EXPECT_EQ(Texts(InTable("1501 \"a\" 0x5DE \"b\" 010 \"c\" 0 \"d\" 65535 \"e\"")),
              "1501=a|1502=b|8=c|0=d|65535=e|");
}

TEST(StringScript, EscapesAreThoseOfTheResourceCompilers) {
    EXPECT_EQ(Texts(InTable(R"(1 "say ""a"" and \"b\"" 2 "\\ \x41z \101" 3 "a\q" 4 "\a\t")")),
              "1=say \"a\" and \"b\"|2=\\ Az A|3=a\\q|4=\b\t|");
    EXPECT_EQ(Texts(InTable("1 \"a\\\nb\" 2 \"c\\\r\nd\"")), "1=ab|2=cd|");
}

TEST(StringScript, ThePrefixMakesCodesOfFourDigitsUnits) {
    EXPECT_EQ(Texts(InTable(R"(1 L"\x20AC1" 2 "\x20AC" 3 l"è")")), "1=€1|2= AC|3=è|");
}

TEST(StringScript, NeighbouringLiteralsAreOneText) {
    EXPECT_EQ(Texts(InTable("1 \"con\" L\"cat\"\n  \"enated\"")), "1=concatenated|");
}

TEST(StringScript, TheCodePageHoldsFromItsDirectiveOn) {
    EXPECT_EQ(Texts("STRINGTABLE { 1 \"\xE0\x80\" }\n#pragma code_page(65001)\nSTRINGTABLE { 2 \"à\" }\n"
                    "#pragma code_page( 1252 )\nSTRINGTABLE { 3 \"\xE0\" }\n"),
              "1=à€|2=à|3=à|");
}

TEST(StringScript, AMarkSettlesTheEncoding) {
    EXPECT_EQ(Texts("\xEF\xBB\xBF#pragma code_page(1252)\nSTRINGTABLE { 1 \"à\" }"), "1=à|");
    std::string wide = "\xFF\xFE";
    for (const char character : std::string("STRINGTABLE{1\"\xE0\"}")) {
        wide += character;
        wide += '\0';
    }
    EXPECT_EQ(Texts(wide), "1=à|");
    EXPECT_TRUE(ReadStringScript("a.rc", wide).isUtf16);
}

TEST(StringScript, CommentsDirectivesAndOtherResourcesArePassedOver) {
    EXPECT_EQ(
        Texts("#include <windows.h>\n// STRINGTABLE { 1 \"x\" }\n/* STRINGTABLE\n{ */ 102 DIALOG 0, 0, 1, 1\n"
              "CAPTION \"STRINGTABLE\" BEGIN LTEXT \"a\", 1, 2 END\n#define X \\\n STRINGTABLE\n"
              "STRINGTABLE { 1 \"a // b\" /* c */ 2 \"#b\" }"),
        "1=a // b|2=#b|");
}

TEST(StringScript, ALanguageHoldsForTheTablesBehindItAndInATablesHeadForThatOne) {
    const StringScript script = ReadStringScript(
        "a.rc",
        "STRINGTABLE { 1 \"a\" } LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN STRINGTABLE { 2 \"b\" }\n"
        "STRINGTABLE LANGUAGE 0x10, 1 BEGIN 3 \"c\" END STRINGTABLE { 4 \"d\" }");
    ASSERT_EQ(script.texts.size(), 4U);
    EXPECT_EQ(script.texts[0].language, "");
    EXPECT_EQ(script.texts[1].language, "LANG_ITALIAN, SUBLANG_ITALIAN");
    EXPECT_EQ(script.texts[2].language, "language 0x0410");
    EXPECT_EQ(script.texts[3].language, "LANG_ITALIAN, SUBLANG_ITALIAN");
}

TEST(StringScript, TextsAndTablesRecordTheirPositions) {
    const std::string text =
        "// one\n/* two\nthree */\nSTRINGTABLE\nBEGIN\n    1 \"a\\\nb\"\n    2 \"c\"\nEND\n";
    const StringScript script = ReadStringScript("a.rc", text);
    ASSERT_EQ(script.texts.size(), 2U);
    EXPECT_EQ(script.texts[0].line, 6U);
    EXPECT_EQ(script.texts[1].line, 8U);
    ASSERT_EQ(script.tables.size(), 1U);
    EXPECT_EQ(script.tables[0].end, text.find("END"));
    EXPECT_EQ(script.tables[0].codePage, kWesternEuropean);
}

TEST(StringScript, EveryErrorNamesItsLine) {
    EXPECT_EQ(ErrorOf("\n\nSTRINGTABLE\nBEGIN\n 1 \"a\"\n"),
              "a.rc:3: the string table that begins here is not closed with END");
    EXPECT_EQ(ErrorOf("\n1 DIALOG 0\n{ BEGIN END\n"),
              "a.rc:3: the block that begins here is not closed with END");
    EXPECT_EQ(ErrorOf("STRINGTABLE {\n 1 \"a\n }"),
              "a.rc:2: the text that begins here is not closed with a quote");
    EXPECT_EQ(ErrorOf("\n/* a\n"), "a.rc:2: the comment that begins here is not closed with */");
    EXPECT_EQ(ErrorOf("STRINGTABLE\n\"a\""), "a.rc:2: BEGIN or { is expected after STRINGTABLE");
    EXPECT_EQ(ErrorOf("STRINGTABLE {\n\nIDS_A \"a\" }"),
              "a.rc:3: expected the number of a text, 0 to 65535, not 'IDS_A'");
    EXPECT_EQ(ErrorOf("STRINGTABLE { 65536 \"a\" }"),
              "a.rc:1: expected the number of a text, 0 to 65535, not '65536'");
    EXPECT_EQ(ErrorOf("STRINGTABLE {\n 7 8 }"), "a.rc:2: text 7 has no text in quotes after its number");
    EXPECT_EQ(ErrorOf("LANGUAGE LANG_ITALIAN\n;"), "a.rc:2: a comma is expected after the language");
    EXPECT_EQ(ErrorOf("\n#pragma code_page(utf8)\n"),
              "a.rc:2: 'utf8' is not a code page: write its number, such as 65001");
    EXPECT_EQ(ErrorOf(InTable("\n1 \"\xE0\"")),
              "a.rc:5: the text contains bytes that are invalid in code page 65001: save the script as UTF-8 "
              "and put "
              "#pragma code_page(65001) at its start");
}

TEST(StringScript, BytesBeyondAsciiNeedAKnownCodePage) {
    EXPECT_EQ(Texts("#pragma code_page(932)\nSTRINGTABLE { 1 \"a\" }"), "1=a|");
    EXPECT_EQ(ErrorOf("#pragma code_page(932)\nSTRINGTABLE { 1 \"\x81\x40\" }").substr(0, 7), "a.rc:2:");
}

TEST(StringScript, IllFormedUtf8IsRefused) {
    for (const char* bytes :
         {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
        EXPECT_FALSE(DecodeText(bytes, kUtf8));
    }
    EXPECT_EQ(DecodeText("\xF0\x9F\x9A\xAA", kUtf8), std::optional(std::wstring{0xD83D, 0xDEAA}));
    EXPECT_EQ(tavrin::encoding::EncodeUtf8(std::wstring{0xD83D, 0xDEAA, 0xD83D}),
              "\xF0\x9F\x9A\xAA\xEF\xBF\xBD");
}

// Random bytes of what means something here: the sanitizers watch, and every error is one of ours.
TEST(StringScript, NoInputDoesMoreThanFail) {
    const std::string pieces[] = {"STRINGTABLE",
                                  "BEGIN",
                                  "END",
                                  "{",
                                  "}",
                                  "\"",
                                  "\\",
                                  "\n",
                                  "1",
                                  "LANGUAGE",
                                  ",",
                                  "L\"",
                                  "//",
                                  "/*",
                                  "*/",
                                  "#pragma code_page(",
                                  "65001)",
                                  "\xC3",
                                  "\\x",
                                  " ",
                                  "\r\n",
                                  "\xFF\xFE",
                                  std::string(1, '\0')};
    unsigned state = 1;
    for (int i = 0; i < 20000; ++i) {
        std::string script;
        for (unsigned length = state % 13; length > 0; --length) {
            state = state * 1664525 + 1013904223;
            script += pieces[(state >> 16) % std::size(pieces)];
        }
        state = state * 1664525 + 1013904223;
        try {
            ReadStringScript("a.rc", script);
        } catch (const CToolError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, 5), "a.rc:");
        }
    }
}

TEST(StringScript, EscapesOfControlCharactersAreThose) {
    const StringScript script = ReadStringScript("a.rc", R"(STRINGTABLE { 1 "a\a\n\r\t" })");
    ASSERT_EQ(script.texts.size(), 1U);
    EXPECT_EQ(script.texts[0].text, L"a\b\n\r\t");
}

}  // namespace
