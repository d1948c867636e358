// tavrincheck texts.
#include "tools/tavrincheck/TextsCommand.h"

#include "encoding/Encoding.h"
#include "tests/unit/tools/ToolFolder.h"
#include "tools/texts/StringModule.h"
#include "tools/texts/TextTable.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class TextsCommand : public testing::Test {
protected:
    std::string Run(const std::vector<std::string>& arguments) {
        return folder.Short(OutputOf([&] { EXPECT_EQ(RunTexts(arguments), 0); }));
    }
    std::string ErrorOf(const std::vector<std::string>& arguments) {
        try {
            RunTexts(arguments);
            return "(none)";
        } catch (const std::runtime_error& error) {
            return folder.Short(error.what());
        }
    }
    // "1501 1040 Larghezza|" for each text of a module.
    std::string TextsOf(const std::string& name) {
        std::string texts;
        for (const ModuleText& text : ReadStringModule(name, folder.Read(name))) {
            texts += std::to_string(text.number) + " " + std::to_string(text.languageId) + " " +
                     tavrin::encoding::EncodeUtf8(text.text) + "|";
        }
        return texts;
    }

    CToolFolder folder;
};

TEST_F(TextsCommand, MakesAModuleOfAScript) {
    const std::string script = folder.Write(
        "t.rc",
        "LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN_SWISS\nSTRINGTABLE\nBEGIN\n 7 \"sette\"\n 8 \"otto\"\nEND\n");
    EXPECT_EQ(Run({script, "-o", folder.Path("TavrinRes.dll")}), "TavrinRes.dll: 2 texts, for x64 hosts\n");
    EXPECT_EQ(TextsOf("TavrinRes.dll"), "7 2064 sette|8 2064 otto|");
}

TEST_F(TextsCommand, TheMachineIsThatOfTheHost) {
    const std::string script = folder.Write("t.rc", "STRINGTABLE { 7 \"seven\" }\n");
    EXPECT_EQ(Run({script, "--machine", "x86", "-o", folder.Path("a.dll")}),
              "a.dll: 1 text, for x86 hosts\n");
    EXPECT_EQ(folder.Read("a.dll").substr(0x44, 2), "\x4C\x01");
    EXPECT_EQ(ErrorOf({script, "--machine", "arm", "-o", folder.Path("a.dll")}),
              "invalid value 'arm' for option '--machine': expected x64 or x86");
}

TEST_F(TextsCommand, TheFolderOfTheModuleIsMade) {
    const std::string script = folder.Write("t.rc", "LANGUAGE 7, 1\nSTRINGTABLE { 7 \"sieben\" }\n");
    Run({script, "-o", folder.Path("texts/de/TavrinRes.dll")});
    EXPECT_EQ(TextsOf("texts/de/TavrinRes.dll"), "7 1031 sieben|");
    folder.Write("u.rc", "LANGUAGE LANG_KLINGON, 1\nSTRINGTABLE { 7 \"a\" }\n");
    ErrorOf({folder.Path("u.rc"), "-o", folder.Path("none/a.dll")});
    EXPECT_FALSE(std::filesystem::exists(folder.Path("none")));
}

TEST_F(TextsCommand, WithoutALanguageTheTextsAreThoseOfTheResourceCompilersDefault) {
    Run({folder.Write("t.rc", "STRINGTABLE { 7 \"seven\" }\n"), "-o", folder.Path("a.dll")});
    EXPECT_EQ(TextsOf("a.dll"), "7 1033 seven|");
}

TEST_F(TextsCommand, SeveralFilesBecomeOneModuleWhichMayBeOneOfThem) {
    const std::string module = folder.Path("TavrinRes.dll");
    Run({folder.Write("a.rc", "LANGUAGE 0x10, 1\nSTRINGTABLE { 7 \"sette\" }\n"), "-o", module});
    Run({module, folder.Write("b.rc", "LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN\nSTRINGTABLE { 9 \"nove\" }\n"),
         "-o", module});
    EXPECT_EQ(TextsOf("TavrinRes.dll"), "7 1040 sette|9 1040 nove|");
    folder.Write("other.rc", "LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN\nSTRINGTABLE { 9 \"nono\" }\n");
    EXPECT_EQ(ErrorOf({module, folder.Path("other.rc"), "-o", folder.Path("c.dll")}),
              "other.rc:2: text 9 already exists, in TavrinRes.dll");
    EXPECT_EQ(folder.Read("c.dll"), "(no file)");
}

// Such as the texts of the module itself, which each author's script has.
TEST_F(TextsCommand, ATextThatFilesShareIsTakenOnce) {
    const std::string module = folder.Path("a.dll");
    folder.Write("a.rc", "LANGUAGE 9, 2\nSTRINGTABLE { 7 \"seven\" 8 \"eight\" }\n");
    folder.Write("b.rc",
                 "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_UK\nSTRINGTABLE { 7 \"seven\" 9 \"nine\" }\n");
    EXPECT_EQ(Run({folder.Path("a.rc"), folder.Path("b.rc"), "-o", module}),
              "a.dll: 3 texts, for x64 hosts\n");
    EXPECT_EQ(TextsOf("a.dll"), "7 2057 seven|8 2057 eight|9 2057 nine|");
    EXPECT_EQ(Run({module, folder.Path("b.rc"), "-o", module}), "a.dll: 3 texts, for x64 hosts\n");
    EXPECT_EQ(TextsOf("a.dll"), "7 2057 seven|8 2057 eight|9 2057 nine|");
}

TEST_F(TextsCommand, SeveralLanguagesInOneModuleAreNamed) {
    folder.Write("uk.rc", "LANGUAGE 9, 2\nSTRINGTABLE { 7 \"seven\" }\n");
    folder.Write("us.rc", "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US\nSTRINGTABLE { 7 \"door\" }\n");
    EXPECT_EQ(Run({folder.Path("uk.rc"), folder.Path("us.rc"), "-o", folder.Path("a.dll")}),
              "a.dll: 2 texts, for x64 hosts\n"
              "The texts are in 2 languages: language 0x0809; LANG_ENGLISH, SUBLANG_ENGLISH_US. A user sees "
              "those of one of them alone. If they are meant to be in one, give all scripts the same line "
              "LANGUAGE.\n");
    EXPECT_EQ(TextsOf("a.dll"), "7 1033 door|7 2057 seven|");
}

TEST_F(TextsCommand, TheSamplesTextsAreAllInTheirModule) {
    for (const std::string language : {"en", "it"}) {
        const std::string script = TAVRIN_SAMPLES "/texts/TavrinRes." + language + ".rc";
        Run({script, "-o", folder.Path("TavrinRes.dll")});
        CTextTable expected;
        expected.ReadFile(script);
        CTextTable table;
        table.ReadFile(folder.Path("TavrinRes.dll"));
        ASSERT_EQ(table.Texts().size(), expected.Texts().size());
        for (const TextEntry& text : expected.Texts()) {
            EXPECT_EQ(table.Load(text.number), expected.Load(text.number)) << text.number;
        }
    }
}

TEST_F(TextsCommand, ErrorsSayWhatToDo) {
    const std::string script = folder.Write("t.rc", "STRINGTABLE { 7 \"seven\" }\n");
    EXPECT_EQ(ErrorOf({}), "no script: give a string table script, for example TavrinRes.rc, or see --help");
    EXPECT_EQ(ErrorOf({script}), "option '-o' is required, for example -o TavrinRes.dll");
    EXPECT_EQ(ErrorOf({script, "-o"}), "option '-o' requires a value, for example TavrinRes.dll");
    EXPECT_EQ(ErrorOf({folder.Path("no.rc"), "-o", "a.dll"}), "no.rc: the file cannot be opened");
    EXPECT_EQ(ErrorOf({script, "-o", script}),
              "t.rc: this file exists and is not a module, choose another name");
    EXPECT_EQ(ErrorOf({script, "-o", script + "/a.dll"}), "t.rc: the folder cannot be created");
    EXPECT_EQ(
        ErrorOf({folder.Write("u.rc", "LANGUAGE LANG_KLINGON, 1\nSTRINGTABLE { 7 \"a\" }\n"), "-o",
                 folder.Path("a.dll")}),
        "u.rc:2: the language LANG_KLINGON, 1 is unknown: write its numbers, such as LANGUAGE 0x10, 0x01");
    EXPECT_EQ(ErrorOf({folder.Write("l.rc", "STRINGTABLE { 7 \"" + std::string(65536, 'x') + "\" }\n"), "-o",
                       folder.Path("a.dll")}),
              "l.rc:1: text 7 is too long for a module");
    EXPECT_EQ(ErrorOf({folder.Write("e.rc", "// nothing\n"), "-o", folder.Path("a.dll")}),
              "e.rc: it contains no texts: give a string table script or a DLL");
    EXPECT_EQ(folder.Read("a.dll"), "(no file)");
}

TEST_F(TextsCommand, HelpNeedsNoFile) {
    EXPECT_TRUE(Run({"--help"}).starts_with("tavrincheck texts"));
}

}  // namespace
