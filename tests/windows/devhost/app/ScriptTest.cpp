// Scripts of LISP that DevHost runs from its command line: what they print and draw, how they end.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

// A run of scripts that lie in a folder of their own.
class Script : public testing::Test {
protected:
    // Writes the script and runs it, with further arguments after it.
    Outcome Run(const std::string& text, const std::vector<std::wstring>& more = {}) {
        m_folder.Write(L"test.lsp", text);
        std::vector<std::wstring> arguments = {L"--script", L"test.lsp"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunHost(arguments);
    }

    static void ExpectFailure(const Outcome& outcome, const std::string& line,
                              const std::string& output = "") {
        EXPECT_EQ(outcome.status, 1u);
        EXPECT_EQ(outcome.errors, "DevHost: " + line + "\n");
        EXPECT_EQ(outcome.output, output);
    }

    std::string Contents(const std::wstring& name) const {
        std::ifstream stream(std::filesystem::path(m_folder.Path()) / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    CTestFolder m_folder;
};

TEST_F(Script, PrintsWhatItPrintsAlone) {
    const Outcome outcome =
        Run("(setq a 1)\n(princ \"per\xC3\xB2\\n\") (prin1 \"a\") (princ (echo a \"b\"))");
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output, "per\xC3\xB2\n\"a\"(1 b)\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(Script, TextsAreUtf16) {
    EXPECT_EQ(Run("(princ \"\xF0\x9F\x9A\xAA \") (princ (strlen \"\xF0\x9F\x9A\xAA\"))").output,
              "\xF0\x9F\x9A\xAA 2\n");
}

TEST_F(Script, ScriptsAndExpressionsAreDoneInTheOrderGiven) {
    m_folder.Write(L"second.lsp", "(princ (twice a))");
    const Outcome outcome = Run("(defun twice (x) (* 2 x))", {L"--eval", L"(setq a 4) (princ)", L"--script",
                                                              L"second.lsp", L"--eval", L"a"});
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output, "4\n8\n4\n; heap: 0 blocks held\n");
}

TEST_F(Script, AMistakeEndsTheRunWithFileLineAndFunction) {
    ExpectFailure(Run("(princ \"first\")\n(defun f (x)\n  (strcat \"a\" x))\n(f 5)\n(princ \"never\")",
                      {L"--eval", L"(princ \"never\")"}),
                  "test.lsp:4 > test.lsp:3 in F: STRCAT needs a string as argument 2, not 5",
                  "first\n; heap: 0 blocks held\n");
    ExpectFailure(Run("\n(unknown-function 1)"),
                  "test.lsp:2: the function UNKNOWN-FUNCTION is not defined: check its name and whether the "
                  "plug-in defines it");
    ExpectFailure(Run("(car 1 2)"), "test.lsp:1: CAR takes 1 argument, not 2");
    ExpectFailure(Run("(echo '(1))"), "test.lsp:1: ECHO cannot take (1): only numbers and texts are passed");
    ExpectFailure(
        Run("(load \"other\")"),
        "test.lsp:1: LOAD: the file 'other.lsp' was not found: check its name and the search folders");
}

TEST_F(Script, WhatCannotBeReadIsFoundBeforeAnythingIsLoadedOrRun) {
    const CEnvironment crash(L"TESTPLUGIN_LOAD", L"crash");
    ExpectFailure(Run("(princ \"half\")\n (list 1"), "test.lsp:2:2: a parenthesis is not closed");
    ExpectFailure(RunHost({L"--eval", L"(princ 1)", L"--script", L"none.lsp"}),
                  "the file 'none.lsp' cannot be opened: give an existing file");
    ExpectFailure(RunHost({L"--script", L"."}), "the file '.' cannot be opened: give an existing file");
}

TEST_F(Script, ExitEndsTheRunWithItsStatus) {
    const Outcome outcome = Run("(princ 1) (defun f () (exit 7)) (f) (princ 2)", {L"--eval", L"(princ 3)"});
    EXPECT_EQ(outcome.status, 7u);
    EXPECT_EQ(outcome.output, "1\n; heap: 0 blocks held\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(Run("(exit)").status, 0u);
}

TEST_F(Script, AMistakeThatTheRoutineDealsWithFailsWithoutALine) {
    const Outcome outcome = Run("(defun *error* (text) (princ text))\n(car 5)");
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "test.lsp:2: CAR needs a list as argument 1, not 5\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(Script, AFailureOfThePlugInIsPrintedOnce) {
    const Outcome outcome = Run("(fail-with \"no way\") (princ \"never\")");
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "; error: no way\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(Script, BlocksThatThePlugInKeepsAreReported) {
    const Outcome outcome = Run("(princ \"a\") (leak 1 8)");
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "a\n; heap: 1 block held, 8 bytes\n");
}

TEST_F(Script, RecursionWithoutEndIsAMistakeAndNoCrash) {
    const Outcome outcome = Run("(defun f (x) (1+ (f x)))\n(f 1)");
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_TRUE(outcome.errors.starts_with("DevHost: test.lsp:2 > test.lsp:1 in F > "));
    EXPECT_TRUE(outcome.errors.ends_with(
        "test.lsp:1 in F: calls are nested too deep: does the recursion come to an end?\n"));
    EXPECT_EQ(Run("(defun f (n) (if (> n 0) (progn (echo n) (f (1- n)))))(f 3000)").status, 0u);
}

TEST_F(Script, EscapeEndsAnEndlessLoop) {
    m_folder.Write(L"test.lsp", "(princ \"on\") (while T)");
    CHostProcess host({L"--script", L"test.lsp"});
    PostMessageW(host.MainWindow(), WM_KEYDOWN, VK_ESCAPE, 0);
    ExpectFailure(host.Wait(), "cancelled", "on\n");
}

TEST_F(Script, TheDrawingIsWrittenAtTheEnd) {
    const Outcome outcome =
        Run("(draw-line '(0 0) '(100 50)) (draw-circle '(50 25) 10) (draw-fit)", {L"--drawing", L"out.svg"});
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output, "");
    const std::string svg = Contents(L"out.svg");
    EXPECT_TRUE(svg.starts_with("<svg "));
    EXPECT_NE(svg.find("<line x1=\"0\" y1=\"0\" x2=\"100\" y2=\"-50\"/>"), std::string::npos) << svg;
    EXPECT_NE(svg.find("<circle cx=\"50\" cy=\"-25\" r=\"10\"/>"), std::string::npos) << svg;
}

TEST_F(Script, ADrawingThatCannotBeWrittenIsNamedBeforeAnythingRuns) {
    for (const std::string file : {"no\\where.svg", "..", "c:\\"}) {
        ExpectFailure(Run("(princ \"never\")", {L"--drawing", std::wstring(file.begin(), file.end())}),
                      "the drawing cannot be written to '" + file +
                          "': give --drawing a writable file in an existing folder");
    }
}

TEST_F(Script, ADrawingThatMayNotBeOverwrittenIsNamedAndStays) {
    m_folder.Write(L"old.svg", "old");
    SetFileAttributesW(L"old.svg", FILE_ATTRIBUTE_READONLY);
    const Outcome outcome = Run("(draw-line '(0 0) '(1 1))", {L"--drawing", L"old.svg"});
    SetFileAttributesW(L"old.svg", FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_TRUE(outcome.errors.ends_with("old.svg': give --drawing a writable file in an existing folder\n"))
        << outcome.errors;
    EXPECT_EQ(Contents(L"old.svg"), "old");
}

TEST_F(Script, SystemVariablesAreSharedWithThePlugIn) {
    const Outcome outcome =
        Run("(princ (getvar \"LUNITS\")) (setvar \"LUNITS\" 4) (setvar \"luprec\" 1)"
            "(princ (read-variable \"LUNITS\")) (princ (format-length 15.5 4 -1)) (princ (rtos 15.5))",
            {L"--lunits", L"2"});
    EXPECT_EQ(outcome.output, "2(5100 5003 4)(5100 1'-3 1/2\")1'-3 1/2\"\n");
    ExpectFailure(Run("(setvar \"LUNITS\" 6)"),
                  "test.lsp:1: SETVAR: LUNITS takes a whole number from 1 to 5, not 6");
    ExpectFailure(Run("(setvar \"LUPREC\" 2.0)"),
                  "test.lsp:1: SETVAR: LUPREC takes a whole number from 0 to 8, not 2.0");
    ExpectFailure(Run("(setvar \"CMD\" 1)"),
                  "test.lsp:1: SETVAR: there is no system variable CMD: use LUNITS or LUPREC");
}

TEST_F(Script, FilesAreReadAndWrittenWhereTheFolderIsCurrent) {
    const Outcome outcome =
        Run("(setq name \"citt\xC3\xA0 \xE9\x96\x80.txt\" f (open name \"w\")) (write-line \"per\xC3\xB2\" "
            "f) (close f)"
            "(setq f (open (findfile name) \"r\")) (princ (strlen (read-line f))) (close f)");
    EXPECT_EQ(outcome.output, "4\n");
    EXPECT_EQ(Contents(L"citt\u00E0 \u9580.txt"), "per\xF2\r\n");
}

TEST_F(Script, TheVersionIsPrinted) {
    const Outcome outcome = CHostProcess({L"--version"}, EStart::Bare).Wait();
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_TRUE(outcome.output.starts_with("DevHost ")) << outcome.output;
    EXPECT_NE(outcome.output.find('.'), std::string::npos) << outcome.output;
}

}  // namespace
