// Options, their values and what is wrong with them.
#include "cmdline/CommandLine.h"

#include <gtest/gtest.h>

using namespace tavrin::cmdline;

namespace {

using Strings = std::vector<std::string>;

// A program with options of every kind. Its values are recorded in order: "[--text=a] [--number=2] strict
// file".
class CommandLine : public testing::Test {
protected:
    std::string Parsed(const Strings& arguments) {
        CCommandLine commandLine;
        std::string noted;
        const auto note = [&noted](const std::string& name) {
            return [&noted, name](const std::string& value) { noted += "[" + name + "=" + value + "] "; };
        };
        int number = 0;
        bool strict = false;
        bool help = false;
        Strings files;
        commandLine.AddOption("--text", "a.txt", note("--text"));
        commandLine.AddOption("--other", "b.txt", note("--other"));
        commandLine.AddNumber("--number", 4, {1, 5}, number);
        commandLine.AddFlag("--strict", strict);
        commandLine.AddExitFlag("--help", help);
        commandLine.AddExitFlag("-h", help);
        if (m_takesFiles) {
            commandLine.AddArguments(files);
        }
        commandLine.Parse(arguments);
        noted += number != 0 ? "[--number=" + std::to_string(number) + "] " : "";
        noted += strict ? "strict " : "";
        noted += help ? "help " : "";
        for (const std::string& file : files) {
            noted += file + " ";
        }
        return noted;
    }

    std::string ErrorOf(const Strings& arguments) {
        try {
            return "none: " + Parsed(arguments);
        } catch (const CUsageError& error) {
            return error.what();
        }
    }

    bool m_takesFiles = true;
};

TEST_F(CommandLine, AValueFollowsItsOptionOrItsEqualsSign) {
    EXPECT_EQ(Parsed({"--text", "a", "--text=b=c", "--number", "2"}),
              "[--text=a] [--text=b=c] [--number=2] ");
    EXPECT_EQ(Parsed({"--number=3"}), "[--number=3] ");
}

TEST_F(CommandLine, OccurrencesOfSeveralOptionsKeepTheirOrder) {
    EXPECT_EQ(Parsed({"--other", "1", "--text", "2", "--other", "3"}), "[--other=1] [--text=2] [--other=3] ");
}

TEST_F(CommandLine, AValueMayBeANegativeNumberAListInBracketsOrHoldBlanks) {
    EXPECT_EQ(Parsed({"--text", "-1", "--text", "[a,b]", "--text", "(f 1) (= a 2)", "--text", "{}"}),
              "[--text=-1] [--text=[a,b]] [--text=(f 1) (= a 2)] [--text={}] ");
}

TEST_F(CommandLine, FlagsAndFilesStandAnywhere) {
    EXPECT_EQ(Parsed({"a", "--strict", "[b]", "--text", "c", "-", "--strict"}), "[--text=c] strict a [b] - ");
}

TEST_F(CommandLine, AfterTwoHyphensNothingIsAnOption) {
    EXPECT_EQ(Parsed({"a", "--", "--strict", "--", "--help"}), "a --strict -- --help ");
    EXPECT_EQ(Parsed({"--"}), "");
}

TEST_F(CommandLine, AMissingValueIsReportedWithAnExample) {
    const std::string missing = "option '--text' requires a value, for example a.txt";
    for (const Strings& arguments : {Strings{"--text"},
                                     {"--text="},
                                     {"--text=", "a"},
                                     {"--text", ""},
                                     {"--text", "--strict"},
                                     {"--text", "--", "a"}}) {
        EXPECT_EQ(ErrorOf(arguments), missing) << testing::PrintToString(arguments);
    }
    EXPECT_EQ(ErrorOf({"--number"}), "option '--number' requires a value, for example 4");
}

TEST_F(CommandLine, AnInvalidNumberIsReportedWithItsRange) {
    for (const std::string value : {"0", "6", "22", "x", "-1", "2.0", "2x", " 2", "99999999999"}) {
        EXPECT_EQ(ErrorOf({"--number=" + value}),
                  "invalid value '" + value + "' for option '--number': expected a number from 1 to 5");
    }
    EXPECT_EQ(Parsed({"--number=1"}), "[--number=1] ");
    EXPECT_EQ(Parsed({"--number=5"}), "[--number=5] ");
}

TEST_F(CommandLine, AFlagTakesNoValue) {
    EXPECT_EQ(ErrorOf({"--strict=1"}), "option '--strict' takes no value");
    EXPECT_EQ(ErrorOf({"--help="}), "option '--help' takes no value");
}

TEST_F(CommandLine, UnknownOptionsAndUnexpectedArgumentsAreNamed) {
    EXPECT_EQ(ErrorOf({"a", "--evil=1"}), "unknown option '--evil', see --help");
    EXPECT_EQ(ErrorOf({"-x"}), "unknown option '-x', see --help");
    m_takesFiles = false;
    EXPECT_EQ(ErrorOf({"--strict", "door"}), "unexpected argument 'door', see --help");
    EXPECT_EQ(ErrorOf({""}), "unexpected argument '', see --help");
    EXPECT_EQ(ErrorOf({"--", "--strict"}), "unexpected argument '--strict', see --help");
}

TEST_F(CommandLine, HelpWinsOverEverythingElse) {
    EXPECT_EQ(Parsed({"--evil", "--number", "x", "--help"}), "help ");
    EXPECT_EQ(Parsed({"-h", "--text"}), "help ");
}

}  // namespace
