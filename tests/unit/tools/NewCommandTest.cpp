// tavrincheck new: the item that it writes is complete.
#include "tools/tavrincheck/NewCommand.h"

#include "tests/unit/tools/CheckRun.h"
#include "tests/unit/tools/ToolFolder.h"
#include "tools/tavrincheck/TextsCommand.h"
#include "tools/texts/TextTable.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

namespace fs = std::filesystem;

class NewCommand : public testing::Test {
protected:
    std::string Run(const std::vector<std::string>& arguments) {
        return folder.Short(OutputOf([&] { EXPECT_EQ(RunNew(arguments), 0); }));
    }
    std::string Make(const std::string& name) { return Run({name, "--in", folder.Path("")}); }
    std::string ErrorOf(const std::vector<std::string>& arguments) {
        try {
            RunNew(arguments);
            return "(none)";
        } catch (const std::runtime_error& error) {
            return folder.Short(error.what());
        }
    }
    std::wstring TextIn(const std::string& file, unsigned number) {
        CTextTable texts;
        texts.ReadFile(folder.Path(file));
        return texts.Load(number);
    }

    CToolFolder folder;
};

TEST_F(NewCommand, InAnEmptyFolderEverythingIsMadeAndNothingIsWrong) {
    const std::string output = Make("cabinet");
    EXPECT_EQ(
        output.substr(0, output.find("To try it")),
        "texts/en/TavrinRes.dll\ntexts/TavrinRes.en.rc\ncabinet/cabinet.TXT\ncabinet/cabinet.lsp\n"
        "cabinet/cabinet.svg\ncabinet/cabinet.png\ncabinet/slides/cabinet_plain_t.svg\n"
        "cabinet/cabinet_plain_t.png\ncabinet/slides/cabinet_divided_t.svg\ncabinet/cabinet_divided_t.png\n"
        "item.lsp\nlogo.png\nempty.png\n");
    const CheckRun check =
        Check({folder.Path(""), "--strict", "--texts", folder.Path("texts/en/TavrinRes.dll")});
    EXPECT_EQ(check.status, 0) << check.output << check.errors;
    EXPECT_EQ(check.output, "");
    EXPECT_EQ(folder.Read("item.lsp"), ReadBytes(TAVRIN_SAMPLES "/item.lsp"));
}

TEST_F(NewCommand, AmongTheSamplesTheTextsAreAddedInBothLanguages) {
    fs::copy(TAVRIN_SAMPLES, folder.Path(""), fs::copy_options::recursive);
    fs::remove_all(folder.Path("door"));
    Make("filing-cabinet");
    EXPECT_EQ(TextIn("texts/TavrinRes.it.rc", 3002), L"Larghezza");
    EXPECT_EQ(TextIn("texts/TavrinRes.en.rc", 3002), L"Width");
    EXPECT_EQ(TextIn("texts/it/TavrinRes.dll", 3003), L"Altezza");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 3001), L"Filing cabinet");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 2003), L"Staircase");
    const CheckRun check = Check({folder.Path("filing-cabinet"), "--strict"});
    EXPECT_EQ(check.status, 0) << check.output;
}

// So that a translation of the script translates them too.
TEST_F(NewCommand, TheTextsOfTheSharedRoutineAreAddedOnceInTheLanguageOfTheScript) {
    fs::create_directories(folder.Path("texts"));
    folder.Write("texts/TavrinRes.it.rc",
                 "LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN\nSTRINGTABLE { 5104 \"mio\" }\n");
    folder.Write("texts/TavrinRes.en.rc", "LANGUAGE 9, 1\nSTRINGTABLE { 1 \"one\" }\n");
    Make("one");
    Make("two");
    for (const std::string language : {"en", "it"}) {
        CTextTable samples;
        samples.ReadFile(TAVRIN_SAMPLES "/texts/TavrinRes." + language + ".rc");
        for (const unsigned number : {5101U, 5102U, 5103U, 5105U, 5106U, 5107U}) {
            EXPECT_EQ(TextIn("texts/" + language + "/TavrinRes.dll", number), samples.Load(number));
        }
    }
    EXPECT_EQ(TextIn("texts/it/TavrinRes.dll", 5104), L"mio");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 5108), L"");
}

TEST_F(NewCommand, EachItemHasARangeOfItsOwn) {
    Make("one");
    Make("two");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 3001), L"One");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 3101), L"Two");
    EXPECT_NE(folder.Read("two/two.TXT").find("$2 = \"<<3103>>\"D 800\n"), std::string::npos);
}

TEST_F(NewCommand, TheRangeBeginsWhereTheAuthorSays) {
    Run({"one", "--in", folder.Path(""), "--from", "7050"});
    Run({"two", "--in", folder.Path(""), "--from", "7001"});
    Run({"three", "--in", folder.Path(""), "--from", "5003"});
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 7050), L"One");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 7101), L"Two");
    EXPECT_EQ(TextIn("texts/en/TavrinRes.dll", 5203), L"Three") << "5101 to 5107 are those of item.lsp";
    EXPECT_EQ(ErrorOf({"four", "--in", folder.Path(""), "--from", "65500"}),
              "no range of free numbers is left for the item's texts");
    EXPECT_EQ(ErrorOf({"four", "--from", "0"}),
              "invalid value '0' for option '--from': expected a number from 1 to 65535");
}

// The next attempt finds the numbers free.
TEST_F(NewCommand, TheScriptsStayAsTheyWereWhenAModuleCannotBeWritten) {
    Make("one");
    const std::string script = folder.Read("texts/TavrinRes.en.rc");
    fs::remove_all(folder.Path("texts/en"));
    folder.Write("texts/en", "a file where the folder should be");
    EXPECT_EQ(ErrorOf({"two", "--in", folder.Path("")}), "texts/en: the folder cannot be created");
    EXPECT_EQ(folder.Read("texts/TavrinRes.en.rc"), script);
    EXPECT_FALSE(fs::exists(folder.Path("two")));
}

// As the samples and the module's own texts are, so that both can be in one module.
TEST_F(NewCommand, ItsTextsJoinThoseOfTheSamples) {
    Make("one");
    const std::string module = folder.Path("joined.dll");
    const std::string output = OutputOf([&] {
        EXPECT_EQ(RunTexts({TAVRIN_SAMPLES "/texts/TavrinRes.en.rc", folder.Path("texts/en/TavrinRes.dll"),
                            "-o", module}),
                  0);
    });
    EXPECT_EQ(output.find("languages"), std::string::npos) << output;
    EXPECT_EQ(TextIn("joined.dll", 3001), L"One");
    CTextTable samples;
    samples.ReadFile(TAVRIN_SAMPLES "/texts/TavrinRes.en.rc");
    for (const TextEntry& text : samples.Texts()) {
        EXPECT_EQ(TextIn("joined.dll", text.number), text.text);
    }
}

TEST_F(NewCommand, ItWorksInTheCurrentFolderAndForTheHostsMachine) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path(""));
    folder.Write("texts.txt", "");
    Run({"a", "--machine", "x86"});
    fs::current_path(before);
    EXPECT_EQ(folder.Read("texts/en/TavrinRes.dll").substr(0x44, 2), "\x4C\x01");
}

TEST_F(NewCommand, TheOwnChangesOfSharedRoutinesAndScriptsStay) {
    folder.Write("item.lsp", "; mine\n");
    fs::create_directories(folder.Path("texts"));
    folder.Write("texts/TavrinRes.rc",
                 "// mine\r\nLANGUAGE 7, 1\r\nSTRINGTABLE\r\nBEGIN\r\n1 \"eins\"\r\nEND\r\n");
    Make("tor");
    EXPECT_EQ(folder.Read("item.lsp"), "; mine\n");
    EXPECT_EQ(
        folder.Read("texts/TavrinRes.rc"),
        "// mine\r\nLANGUAGE 7, 1\r\nSTRINGTABLE\r\nBEGIN\r\n1 \"eins\"\r\n    3001 \"Tor\"\r\n    3002 "
        "\"Width\"\r\n    3003 \"Height\"\r\nEND\r\n");
    EXPECT_EQ(TextIn("texts/TavrinRes.dll", 1), L"eins");
}

TEST_F(NewCommand, NamesThatCannotBeAreRefused) {
    const std::string characters =
        ": a name consists of the letters a to z, digits, - and _, and begins with a letter";
    for (const std::string name : {"", "1a", "a b", "t\xC3\xBCr", "a/b", "a.b", "-a"}) {
        EXPECT_EQ(ErrorOf({"--in", folder.Path(""), "--", name}), "'" + name + "'" + characters);
    }
    for (const std::string name : {"item", "Texts", "con", "a_tmp"}) {
        EXPECT_EQ(ErrorOf({name}), "'" + name + "': this name is reserved, choose another one");
    }
    for (const std::string name : {"list", "DEFUN", "draw-line", "item-edit", "tavrinwnd", "t"}) {
        EXPECT_EQ(ErrorOf({name}), "'" + name + "': this is the name of a LISP function, choose another one");
    }
    EXPECT_EQ(ErrorOf({"a-very-long-name-of"}), "'a-very-long-name-of': a name has at most 15 characters");
}

TEST_F(NewCommand, NothingIsWrittenAfterAnError) {
    EXPECT_EQ(ErrorOf({}), "new takes one name, not 0: for example tavrincheck new shelf, or see --help");
    EXPECT_EQ(ErrorOf({"a", "--in", folder.Path("none")}), "none: there is no such folder");
    folder.Write("a", "");
    EXPECT_EQ(ErrorOf({"a", "--in", folder.Path("")}), "a: it exists already, choose another name");
    fs::create_directories(folder.Path("texts/en"));
    folder.Write("texts/en/TavrinRes.dll", "not a module");
    EXPECT_EQ(ErrorOf({"b", "--in", folder.Path("")}),
              "texts/en/TavrinRes.dll: this file exists and is not a module, choose another name");
    folder.Write("texts/TavrinRes.en.rc", "STRINGTABLE { 1 }\n");
    EXPECT_EQ(ErrorOf({"b", "--in", folder.Path("")}),
              "texts/TavrinRes.en.rc:1: text 1 has no text in quotes after its number");
    EXPECT_FALSE(fs::exists(folder.Path("b")));
    EXPECT_EQ(folder.Read("item.lsp"), "(no file)");
}

TEST_F(NewCommand, HelpNeedsNoName) {
    EXPECT_TRUE(Run({"--help"}).starts_with("tavrincheck new"));
}

}  // namespace
