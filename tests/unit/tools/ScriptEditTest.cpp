// Adding texts to scripts.
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/TextTable.h"

#include <gtest/gtest.h>

#include "tools/files/Files.h"

using namespace tavrin::tools;

namespace {

const std::vector<NewText> kTexts = {{7, L"a \"b\" \\c"}, {8, L"\u00E0"}};

std::string With(const std::string& script, const std::vector<NewText>& texts = kTexts) {
    return Edited(LinesWithEnds(script), EditsOfScript("a.rc", script, texts));
}

TEST(ScriptEdit, TextsAreAddedBeforeTheEndOfTheTable) {
    EXPECT_EQ(With("#pragma code_page(65001)\nSTRINGTABLE\nBEGIN\n    1 \"x\"\nEND\n// last"),
              "#pragma code_page(65001)\nSTRINGTABLE\nBEGIN\n    1 \"x\"\n    7 \"a \"\"b\"\" \\\\c\"\n    8 "
              "\"\xC3\xA0\"\nEND\n// last");
}

TEST(ScriptEdit, LineEndsAndTheCodePageAreTheScripts) {
    EXPECT_EQ(With("STRINGTABLE\r\n{\r\n}\r\n", {{8, L"\u00E0"}}),
              "STRINGTABLE\r\n{\r\n    8 \"\xE0\"\r\n}\r\n");
}

TEST(ScriptEdit, WhatTheCodePageLacksIsEscaped) {
    EXPECT_EQ(With("STRINGTABLE\n{\n}\n", {{8, L"\u0080\u00E0\"\\\t1"}}),
              "STRINGTABLE\n{\n    8 L\"\\x0080\\x00E0\"\"\\\\\\x00091\"\n}\n");
    EXPECT_EQ(With("#pragma code_page(932)\nSTRINGTABLE\n{\n}\n", {{8, L"\u00E0"}}),
              "#pragma code_page(932)\nSTRINGTABLE\n{\n    8 L\"\\x00E0\"\n}\n");
}

TEST(ScriptEdit, TheLastTableOfTheFirstLanguageIsTaken) {
    EXPECT_EQ(
        With("LANGUAGE 1, 1 STRINGTABLE {}\nSTRINGTABLE {\n}\nLANGUAGE 2, 1 STRINGTABLE {\n}\n", {{7, L"a"}}),
        "LANGUAGE 1, 1 STRINGTABLE {}\nSTRINGTABLE {\n    7 \"a\"\n}\nLANGUAGE 2, 1 STRINGTABLE {\n}\n");
}

TEST(ScriptEdit, ATableOnOneLineIsBroken) {
    EXPECT_EQ(With("STRINGTABLE { 1 \"x\" } // end", {{7, L"a"}}),
              "STRINGTABLE { 1 \"x\" \n    7 \"a\"\n} // end");
}

TEST(ScriptEdit, AScriptWithoutATableGetsOne) {
    EXPECT_EQ(With("// a", {{7, L"a"}}), "// a\n\nSTRINGTABLE\nBEGIN\n    7 \"a\"\nEND\n");
    EXPECT_EQ(With("#define A \\\n", {{7, L"a"}}), "#define A \\\n\nSTRINGTABLE\nBEGIN\n    7 \"a\"\nEND\n");
    EXPECT_EQ(With("", {{7, L"a"}}), "STRINGTABLE\nBEGIN\n    7 \"a\"\nEND\n");
}

TEST(ScriptEdit, NoTextsChangeNothing) {
    EXPECT_EQ(With("// a", {}), "// a");
}

TEST(ScriptEdit, ANewScriptHoldsItsTexts) {
    const std::string script = NewScript("door.TXT", kTexts);
    CTextTable table;
    table.ReadBytes("door.rc", script);
    EXPECT_EQ(table.Load(7), kTexts[0].text);
    EXPECT_EQ(table.Load(8), kTexts[1].text);
    EXPECT_NE(script.find("door.TXT"), std::string::npos);
}

TEST(ScriptEdit, AScriptInUtf16IsRefused) {
    EXPECT_THROW(With(std::string("\xFF\xFE/\0/\0", 6)), CToolError);
}

}  // namespace
