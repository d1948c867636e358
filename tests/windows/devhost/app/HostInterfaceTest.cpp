// Each function of the host interface, called by the test plug-in. The statuses: 5100 done, -5001 failed.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

TEST(HostInterface, ArgumentsArriveWithTheirTypes) {
    EXPECT_EQ(Evaluate(L"(echo 32767 -32768 1.0 -2.5e-3 \"\" \"text\")"),
              "(32767 -32768 1.0 -0.0025 \"\" \"text\")\n");
    EXPECT_EQ(Evaluate(L"(echo)"), "nil\n");
}

TEST(HostInterface, WhatCannotBeAnArgumentIsNamed) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"32768", "32768: whole numbers are passed in 16 bits, -32768 to 32767"},
        {L"-32769", "-32769: whole numbers are passed in 16 bits, -32768 to 32767"},
        {L"nil", "nil: only numbers and texts are passed"},
        {L"T", "T: only numbers and texts are passed"},
        {L"'(1 2)", "(1 2): only numbers and texts are passed"},
        {L"'a", "A: only numbers and texts are passed"},
    };
    for (const auto& [argument, message] : cases) {
        const Outcome outcome = RunHost({L"--eval", std::wstring(L"(echo 1 ") + argument + L")"});
        EXPECT_EQ(outcome.status, 1u);
        EXPECT_EQ(outcome.errors, std::string("DevHost: line 1: ECHO cannot take ") + message + "\n");
        EXPECT_EQ(outcome.output, "; heap: 0 blocks held\n");
    }
}

TEST(HostInterface, ResultsAreIntegersNilListsOrNothing) {
    EXPECT_EQ(Evaluate(L"(give-int 1)"), "2147483647\n");
    EXPECT_EQ(Evaluate(L"(give-int -1)"), "-2147483648\n");
    EXPECT_EQ(Evaluate(L"(give-nil)"), "nil\n");
    EXPECT_EQ(Evaluate(L"(give-nothing)"), "; no result\n");
    EXPECT_EQ(Evaluate(L"(give-list)"), "(100 \"na\\\"me\" 2.5 -1)\n");
}

TEST(HostInterface, ListsThatAreNoneAreRefusedAndTheEmptyOneIsNil) {
    EXPECT_EQ(Evaluate(L"(give-wrong-lists)"), "nil\n");
}

TEST(HostInterface, AReportedFailureIsPrintedOnceAndDiscardsTheResult) {
    const Outcome outcome = RunHost({L"--eval", L"(fail-with \"no\\nway\")", L"--eval", L"(give-nil)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "; error: no way\n; heap: 0 blocks held\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST(HostInterface, AnAnswerOtherThanZeroIsAFailure) {
    const Outcome outcome = RunHost({L"--eval", L"(answer-seven)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.errors, "DevHost: line 1: the plug-in returned 7 for the call of ANSWER-SEVEN\n");
}

TEST(HostInterface, AnAlertIsABoxOverTheMainWindow) {
    CHostProcess host({L"--eval", L"(alert-with \"Mind the gap\")"});
    const HWND box = host.WindowWithTitle(L"#32770", L"DevHost");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(GetWindow(box, GW_OWNER), host.MainWindow());
    EXPECT_FALSE(IsWindowEnabled(host.MainWindow()));
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), L"Mind the gap");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    const Outcome outcome = host.Wait();
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output, "; alert: Mind the gap\n5100\n; heap: 0 blocks held\n");
}

TEST(HostInterface, VariablesAreShortsUnderAnyCase) {
    const std::vector<std::wstring> units = {L"--lunits", L"4", L"--luprec", L"6"};
    EXPECT_EQ(Evaluate(L"(read-variable \"LUNITS\")", units), "(5100 5003 4)\n");
    EXPECT_EQ(Evaluate(L"(read-variable \"luPrec\")", units), "(5100 5003 6)\n");
    EXPECT_EQ(Evaluate(L"(read-variable \"AUNITS\")(read-variable \"\")", units),
              "(-5001 0 0)\n(-5001 0 0)\n");
    EXPECT_EQ(Evaluate(L"(read-variable \"LUNITS\")(read-variable \"LUPREC\")"),
              "(5100 5003 2)\n(5100 5003 4)\n");
}

TEST(HostInterface, LengthsAreFormattedInTheUnitsThatAreGiven) {
    EXPECT_EQ(Evaluate(L"(format-length 15.5 1 2)(format-length 15.5 2 2)(format-length 15.5 3 2)"
                       L"(format-length 15.5 4 2)(format-length 15.5 5 2)"),
              "(5100 \"1.55E+01\")\n(5100 \"15.50\")\n(5100 \"1'-3.50\\\"\")\n(5100 \"1'-3 1/2\\\"\")\n"
              "(5100 \"15 1/2\")\n");
}

TEST(HostInterface, PrecisionMinusOneIsTheDrawings) {
    EXPECT_EQ(Evaluate(L"(format-length 15.5 2 -1)"), "(5100 \"15.5000\")\n");
    EXPECT_EQ(Evaluate(L"(format-length 15.5 2 -1)", {L"--luprec", L"1"}), "(5100 \"15.5\")\n");
}

TEST(HostInterface, UnknownUnitsAreDecimal) {
    EXPECT_EQ(Evaluate(L"(format-length 15.5 0 2)(format-length 15.5 -31000 2)"),
              "(5100 \"15.50\")\n(5100 \"15.50\")\n");
}

TEST(HostInterface, TextsAreReadInEveryFormatOrRefused) {
    EXPECT_EQ(Evaluate(L"(read-length \"1'-3 1/2\\\"\" 2)(read-length \"15.5\" 4)"),
              "(5100 15.5)\n(5100 15.5)\n");
    EXPECT_EQ(Evaluate(L"(read-length \"15.5x\" 2)(read-length \"\" 2)"), "(-5001 -1.0)\n(-5001 -1.0)\n");
}

TEST(HostInterface, FilesAreFoundInTheFoldersInOrderThenInTheCurrentOne) {
    const CTestFolder folder;
    for (const wchar_t* name : {L"one", L"two", L"two\\inner"}) {
        folder.MakeFolder(name);
    }
    for (const wchar_t* name : {L"one\\a", L"two\\a", L"a", L"two\\b", L"b", L"c", L"two\\inner\\d"}) {
        folder.Write(name, "");
    }
    const auto found = [&](const std::wstring& name) {
        const std::string printed =
            Evaluate(L"(find-file \"" + name + L"\" 254)", {L"--search", L"one", L"--search", L"two\\"});
        const std::size_t start = printed.find('"') + 1;
        std::wstring path;
        for (const char c : printed.substr(start, printed.rfind('"') - start)) {
            if (c != '\\' || path.empty() || path.back() != L'\\') {
                path += static_cast<wchar_t>(c);
            }
        }
        return path.starts_with(folder.Path() + L'\\') ? path.substr(folder.Path().size() + 1) : path;
    };
    EXPECT_EQ(found(L"a"), L"one\\a");
    EXPECT_EQ(found(L"b"), L"two\\b");
    EXPECT_EQ(found(L"c"), L"c");
    EXPECT_EQ(found(L"inner/d"), L"two\\inner\\d");
    EXPECT_EQ(found(L"e"), L"");
    EXPECT_EQ(found(L""), L"");
    EXPECT_EQ(found(L"inner"), L"") << "a folder is no file";
    EXPECT_EQ(found(L"."), L"");
    EXPECT_EQ(found(L"a\\\\"), L"");
    EXPECT_EQ(found(L"NUL"), L"") << "a device is no file";
    EXPECT_EQ(found(L"?"), L"") << "a pattern is no file";
}

TEST(HostInterface, AnAbsolutePathIsLookedForWhereItSays) {
    const CTestFolder folder;
    folder.MakeFolder(L"one");
    folder.Write(L"a", "");
    std::wstring path;
    for (const wchar_t c : folder.Path() + L"\\a") {
        path += c == L'\\' ? L"\\\\" : std::wstring(1, c);
    }
    const std::string text(path.begin(), path.end());
    EXPECT_EQ(Evaluate(L"(find-file \"" + path + L"\" 254)", {L"--search", L"one"}),
              "(5100 " + std::to_string(folder.Path().size() + 3) + " \"" + text + "\")\n");
    EXPECT_EQ(Evaluate(L"(find-file \"" + path + L"b\" 254)"), "(-5001 0 \"\")\n");
    EXPECT_EQ(Evaluate(L"(find-file \"\\\\a\" 254)"), "(-5001 0 \"\")\n") << "the root of the drive";
}

TEST(HostInterface, APathThatDoesNotFitIsNotFoundAndNothingIsWritten) {
    const CTestFolder folder;
    folder.Write(L"a", "");
    const int needed = static_cast<int>(folder.Path().size()) + 3;  // a backslash, the name and the zero
    const auto status = [&](int capacity) {
        return Evaluate(L"(find-file \"a\" " + std::to_wstring(capacity) + L")").substr(0, 9);
    };
    EXPECT_EQ(status(needed), "(5100 " + std::to_string(needed) + " ");
    EXPECT_EQ(status(needed - 1), "(-5001 0 ");
    EXPECT_EQ(status(1), "(-5001 0 ");
    EXPECT_EQ(status(0), "(-5001 0 ");
}

TEST(HostInterface, NullPointersAndPointsThatAreNoneFail) {
    EXPECT_EQ(Evaluate(L"(use-bad-pointers)"), "12\n");
}

TEST(HostInterface, OtherThreadsGetNothing) {
    EXPECT_EQ(Evaluate(L"(use-other-thread)"), "5\n");
}

TEST(HostInterface, OddAndTakenNamesAreNotDefined) {
    EXPECT_EQ(Evaluate(L"(define-odd-names)(echo 1)"), "10\n(1)\n");
}

}  // namespace
