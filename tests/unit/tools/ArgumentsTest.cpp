// The walk over a command line.
#include "tools/tavrincheck/Arguments.h"

#include <gtest/gtest.h>

#include "tools/files/Files.h"

namespace {

using Strings = std::vector<std::string>;

// Options in brackets with their values, then files: "[--a=1] file".
std::string Walked(const Strings& arguments) {
    std::string walked;
    for (CArguments rest(arguments); rest.Next();) {
        walked += walked.empty() ? "" : " ";
        walked += rest.IsOption() ? "[" + rest.Current() + "=" + rest.Value("a value") + "]" : rest.Current();
    }
    return walked;
}

template <class Ask>
std::string ErrorOf(const Strings& arguments, Ask ask) {
    CArguments rest(arguments);
    rest.Next();
    try {
        ask(rest);
        return "(none)";
    } catch (const CToolError& error) {
        return error.what();
    }
}

TEST(Arguments, AValueStandsBehindItsOptionOrItsEqualsSign) {
    EXPECT_EQ(Walked({"--a", "1", "--b=2=3", "file", "-c", "--x"}), "[--a=1] [--b=2=3] file [-c=--x]");
}

TEST(Arguments, BehindTwoHyphensThereAreOnlyFiles) {
    EXPECT_EQ(Walked({"-", "--", "--a=1", "--"}), "- --a=1 --");
    EXPECT_EQ(Walked({"--"}), "");
}

TEST(Arguments, AMissingValueSaysWhatToGive) {
    const auto ask = [](CArguments& rest) { rest.Value("a number"); };
    EXPECT_EQ(ErrorOf({"--a"}, ask), "--a lacks its value: give a number behind it");
    EXPECT_EQ(ErrorOf({"--a="}, ask), "--a lacks its value: give a number behind it");
}

TEST(Arguments, NumbersAreTakenAsAWholeAndInTheirRange) {
    const auto real = [](CArguments& rest) { rest.RealValue("a number"); };
    EXPECT_EQ(ErrorOf({"--a", "-2.5e3"}, real), "(none)");
    EXPECT_EQ(ErrorOf({"--a", "1x"}, real), "--a does not take '1x': give a number");
    EXPECT_EQ(ErrorOf({"--a", "inf"}, real), "--a does not take 'inf': give a number");
    const auto whole = [](CArguments& rest) { rest.IntValue("1 to 5", 1, 5); };
    EXPECT_EQ(ErrorOf({"--a", "5"}, whole), "(none)");
    EXPECT_EQ(ErrorOf({"--a", "6"}, whole), "--a does not take '6': give 1 to 5");
    EXPECT_EQ(ErrorOf({"--a", "2.5"}, whole), "--a does not take '2.5': give 1 to 5");
}

TEST(Arguments, AFlagTakesNoValue) {
    const auto ask = [](CArguments& rest) { rest.ExpectNoValue(); };
    EXPECT_EQ(ErrorOf({"--a=1"}, ask), "--a takes no value");
    EXPECT_EQ(ErrorOf({"--a", "1"}, ask), "(none)");
}

TEST(Arguments, AnUnknownOptionIsNamed) {
    EXPECT_EQ(ErrorOf({"--a=1"}, [](CArguments& rest) { rest.FailUnknown(); }),
              "the option '--a' is not known: see --help");
}

}  // namespace
