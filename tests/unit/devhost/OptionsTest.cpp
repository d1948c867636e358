// DevHost's command line.
#include "devhost/options/Options.h"

#include <gtest/gtest.h>

using namespace tavrin::units;
using namespace devhost;

namespace {

Options Parse(std::initializer_list<std::wstring> arguments) {
    return ParseOptions(std::vector<std::wstring>(arguments));
}

std::wstring ErrorOf(std::initializer_list<std::wstring> arguments) {
    try {
        Parse(arguments);
        return L"none";
    } catch (const CUserError& error) {
        return error.Text();
    }
}

TEST(Options, WithoutArgumentsTheDefaultsHold) {
    const Options options = Parse({});
    EXPECT_EQ(options.plugIn, L"");
    EXPECT_TRUE(options.searchFolders.empty());
    EXPECT_TRUE(options.itemFolders.empty());
    EXPECT_TRUE(options.tasks.empty());
    EXPECT_EQ(options.texts, L"");
    EXPECT_EQ(options.drawingFile, L"");
    EXPECT_FALSE(options.stay);
    EXPECT_FALSE(options.version);
    EXPECT_EQ(options.lunits, LU_DECIMAL);
    EXPECT_EQ(options.luprec, 4);
    EXPECT_FALSE(options.checkHeap);
    EXPECT_FALSE(options.help);
}

TEST(Options, EachOptionIsTakenAndRepeatedOnesKeepTheirOrder) {
    const Options options =
        Parse({L"--search", L"a",        L"--plugin",     L"p.dll",   L"--search", L"b c",      L"--eval",
               L"(f 1)",    L"--script", L"s.lsp",        L"--eval",  L"-1",       L"--lunits", L"5",
               L"--luprec", L"0",        L"--items",      L"i",       L"--items",  L"j",        L"--drawing",
               L"d.svg",    L"--stay",   L"--check-heap", L"--texts", L"t.dll"});
    EXPECT_EQ(options.texts, L"t.dll");
    EXPECT_EQ(options.plugIn, L"p.dll");
    EXPECT_EQ(options.searchFolders, (std::vector<std::wstring>{L"a", L"b c"}));
    EXPECT_EQ(options.itemFolders, (std::vector<std::wstring>{L"i", L"j"}));
    EXPECT_EQ(options.tasks, (std::vector<Task>{{false, L"(f 1)"}, {true, L"s.lsp"}, {false, L"-1"}}));
    EXPECT_EQ(options.drawingFile, L"d.svg");
    EXPECT_TRUE(options.stay);
    EXPECT_EQ(options.lunits, LU_FRACTIONAL);
    EXPECT_EQ(options.luprec, 0);
    EXPECT_TRUE(options.checkHeap);
}

TEST(Options, AValueFollowsItsOptionOrItsEqualsSign) {
    EXPECT_EQ(Parse({L"--lunits=4"}).lunits, LU_ARCHITECTURAL);
    EXPECT_EQ(Parse({L"--eval=(= 1 2)"}).tasks, (std::vector<Task>{{false, L"(= 1 2)"}}));
}

TEST(Options, NamesAreNotLimitedToOneCodePage) {
    EXPECT_EQ(Parse({L"--plugin", L"門ò.dll"}).plugIn, L"門ò.dll");
}

TEST(Options, AMissingValueNamesItsOption) {
    EXPECT_EQ(ErrorOf({L"--plugin"}), L"option '--plugin' requires a value, for example TavrinWnd.dll");
    EXPECT_EQ(ErrorOf({L"--search", L"--eval", L"(f)"}),
              L"option '--search' requires a value, for example C:\\Items");
    EXPECT_EQ(ErrorOf({L"--eval", L""}), L"option '--eval' requires a value, for example \"(+ 1 2)\"");
}

TEST(Options, ANumberOutOfRangeNamesTheRange) {
    EXPECT_EQ(ErrorOf({L"--lunits", L"6"}),
              L"invalid value '6' for option '--lunits': expected a number from 1 to 5");
    EXPECT_EQ(ErrorOf({L"--luprec", L"9"}),
              L"invalid value '9' for option '--luprec': expected a number from 0 to 8");
}

TEST(Options, UnknownArgumentsAreNamed) {
    EXPECT_EQ(ErrorOf({L"--evil"}), L"unknown option '--evil', see --help");
    EXPECT_EQ(ErrorOf({L"--check-heap", L"door"}), L"unexpected argument 'door', see --help");
}

TEST(Options, HelpAndVersionWinOverEverythingElse) {
    EXPECT_TRUE(Parse({L"--evil", L"--help"}).help);
    EXPECT_TRUE(Parse({L"-h"}).help);
    EXPECT_TRUE(Parse({L"--version", L"--evil"}).version);
}

TEST(Options, TheHelpNamesEveryOption) {
    const std::wstring help = HelpText();
    for (const wchar_t* option :
         {L"--plugin", L"--search", L"--lunits", L"--luprec", L"--eval", L"--check-heap", L"--help",
          L"--items", L"--texts", L"--script", L"--drawing", L"--stay", L"--version"}) {
        EXPECT_NE(help.find(option), std::wstring::npos) << testing::PrintToString(option);
    }
}

}  // namespace
