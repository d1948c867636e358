// DevHost's window in use: what LISP asks and how it is answered, items, reloading, the unit format.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

// Identifiers of the main window's parts and commands.
constexpr int kDrawing = 100;
constexpr int kOutput = 101;
constexpr int kPrompt = 102;
constexpr int kReload = 200;
constexpr int kUnits = 300;
constexpr int kPrecision = 320;
constexpr int kItem = 1000;

class Conversation : public testing::Test {
protected:
    void Start(const std::vector<std::wstring>& arguments = {}) {
        m_host = std::make_unique<CHostProcess>(arguments);
        m_output = m_host->Control(L"Edit", kOutput);
        m_prompt = m_host->Control(L"Edit", kPrompt);
    }

    // Types a line as soon as the prompt takes one.
    void Type(const std::wstring& text) const {
        ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(m_prompt) != FALSE; }));
        SendMessageW(m_prompt, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        PostMessageW(m_prompt, WM_KEYDOWN, VK_RETURN, 0);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(m_prompt).empty(); }));
    }

    void Choose(int command) const {
        PostMessageW(m_host->MainWindow(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    }

    bool WaitForOutput(const std::wstring& end) const {
        const bool came = WaitUntil([&] { return TextOf(m_output).ends_with(end); });
        EXPECT_TRUE(came) << testing::PrintToString(TextOf(m_output));
        return came;
    }

    Outcome Close() const {
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(m_prompt) != FALSE; }));
        PostMessageW(m_host->MainWindow(), WM_CLOSE, 0, 0);
        return m_host->Wait();
    }

    std::unique_ptr<CHostProcess> m_host;
    HWND m_output = nullptr;
    HWND m_prompt = nullptr;
};

TEST_F(Conversation, DefinitionsStayFromLineToLine) {
    Start();
    Type(L"(defun twice (x) (* 2 x))");
    Type(L"(twice 21)");
    WaitForOutput(L"(twice 21)\r\n42");
    Type(L"(progn (princ \"said\") (princ))");
    WaitForOutput(L"\r\nsaid");
    Type(L"(exit 5)");
    Type(L"(+ 1 1)");
    WaitForOutput(L"(exit 5)\r\n(+ 1 1)\r\n2");
    EXPECT_EQ(Close().status, 0u);
}

TEST_F(Conversation, MuchOutputDoesNotHoldUpWhatRuns) {
    const CTestFolder folder;
    folder.Write(L"test.lsp",
                 "(setq n 0) (repeat 20000 (princ (setq n (1+ n))) (terpri))"
                 "(setq s \"x\") (repeat 20 (setq s (strcat s s))) (princ s) (terpri)");
    Start({L"--script", L"test.lsp", L"--stay"});
    WaitForOutput(L"\r\n20000\r\n" + std::wstring(10'000, L'x') + L"...");
    Type(L"s");
    WaitForOutput(L"\r\ns\r\n\"" + std::wstring(9'999, L'x') + L"...");
    const Outcome outcome = Close();
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_TRUE(outcome.output.starts_with("1\n2\n3\n"));
    EXPECT_GT(outcome.output.size(), 2u << 20) << "all of it stands on the standard output";
}

TEST_F(Conversation, QuestionsAreAnsweredByTyping) {
    Start({L"--eval",
           L"(list (getpoint \"\\nWhere? \") (getpoint '(1 1) \"Next? \") (getdist \"How far? \") (getint "
           L"\"n? \")"
           L" (getreal \"r? \") (getstring \"s? \"))"});
    const auto answer = [&](const std::wstring& prompt, const std::wstring& text) {
        const HWND label = GetDlgItem(m_host->MainWindow(), 104);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(label) == prompt; })) << testing::PrintToString(prompt);
        Type(text);
    };
    answer(L"Where?", L"nonsense");
    answer(L"Where?", L"100,200");
    answer(L"Next?", L"@2,3");
    answer(L"How far?", L"1'-3 1/2\"");
    answer(L"n?", L"12");
    answer(L"r?", L"3/4");
    answer(L"s?", L"two words");
    const Outcome outcome = m_host->Wait();
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output,
              "'nonsense' is not a point: click in the drawing or type X,Y\n"
              "((100.0 200.0 0.0) (3.0 4.0 0.0) 15.5 12 0.75 \"two words\")\n; heap: 0 blocks held\n");
}

TEST_F(Conversation, ALengthIsAPointOnTheRubberBand) {
    Start({L"--eval", L"(equal (distance '(0 0) (getpoint '(0 0) \"Next? \")) 10 1e-9)"});
    Type(L"10");
    EXPECT_EQ(m_host->Wait().output, "T\n; heap: 0 blocks held\n");
}

TEST_F(Conversation, APointIsClicked) {
    Start({L"--eval", L"(getpoint \"Where? \")"});
    const HWND drawing = m_host->Control(L"DevHostDrawing", kDrawing);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(m_prompt) != FALSE; }));
    RECT client;
    GetClientRect(drawing, &client);
    PostMessageW(drawing, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, client.bottom - 1 - 40));
    PostMessageW(drawing, WM_LBUTTONUP, 0, MAKELPARAM(30, client.bottom - 1 - 40));
    EXPECT_EQ(m_host->Wait().output, "(30.0 40.0 0.0)\n; heap: 0 blocks held\n");
}

TEST_F(Conversation, EscapeEndsAQuestionAndWhatAsked) {
    Start({L"--eval", L"(progn (getpoint \"Where? \") (princ \"never\"))"});
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(m_prompt) != FALSE; }));
    PostMessageW(m_prompt, WM_KEYDOWN, VK_ESCAPE, 0);
    const Outcome outcome = m_host->Wait();
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.errors, "DevHost: cancelled\n");
    EXPECT_EQ(outcome.output, "; heap: 0 blocks held\n");
}

TEST_F(Conversation, AnAlertOfLispIsABox) {
    Start({L"--eval", L"(alert \"Mind the gap\")"});
    const HWND box = m_host->WindowWithTitle(L"#32770", L"DevHost");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), L"Mind the gap");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(m_host->Wait().output, "; alert: Mind the gap\nnil\n; heap: 0 blocks held\n");
}

TEST_F(Conversation, WithStayTheWindowRemainsAfterTheScripts) {
    const CTestFolder folder;
    folder.Write(L"test.lsp", "(setq a 5)");
    Start({L"--script", L"test.lsp", L"--eval", L"(unknown)", L"--stay", L"--drawing", L"out.svg"});
    Type(L"(progn (draw-line '(0 0) '(7 7)) a)");
    WaitForOutput(L"\r\n5");
    EXPECT_EQ(Close().status, 1u) << "since the expression failed";
    EXPECT_TRUE(std::filesystem::exists(folder.Path() + L"\\out.svg"));
}

TEST_F(Conversation, TheFormatOfTheStatusLineIsThatOfTheVariables) {
    Start();
    Choose(kUnits + 4);
    Choose(kPrecision + 1);
    Type(L"(list (getvar \"LUNITS\") (getvar \"LUPREC\") (rtos 15.5))");
    WaitForOutput(L"\r\n(4 1 \"1'-3 1/2\\\"\")");
    Close();
}

TEST_F(Conversation, ItemsAreLoadedAndCalledFromTheMenu) {
    const CTestFolder folder;
    for (const wchar_t* name : {L"items", L"items\\beta", L"items\\alpha", L"items\\noroutine"}) {
        folder.MakeFolder(name);
    }
    folder.Write(L"items\\alpha\\alpha.lsp", "(defun alpha () (load \"shared\") (shared \"alpha\"))");
    folder.Write(L"items\\beta\\beta.lsp", "(defun beta () (car 5))");
    folder.Write(L"items\\shared.lsp",
                 "(defun shared (name) (princ (findfile (strcat name \".lsp\"))) (princ))");
    folder.Write(L"items\\noroutine\\other.lsp", "");
    Start({L"--items", L"items"});
    Choose(kItem);
    WaitForOutput(L"(alpha)\r\n" + folder.Path() + L"\\items\\alpha\\alpha.lsp");
    Choose(kItem + 1);
    WaitForOutput(L"(beta)\r\n; error: beta.lsp:1 in BETA: CAR needs a list as argument 1, not 5");
    Close();
}

TEST_F(Conversation, AnOpenParenthesisGoesOnInTheNextLine) {
    Start();
    const HWND label = GetDlgItem(m_host->MainWindow(), 104);
    Type(L"(list 1");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(label) == L"LISP ("; }));
    Type(L"\"a");
    Type(L"b\")");
    WaitForOutput(L"(list 1\r\n\"a\r\nb\")\r\n(1 \"a\\nb\")");
    EXPECT_EQ(TextOf(label), L"LISP");
    Type(L"(car");
    PostMessageW(m_prompt, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(label) == L"LISP"; }));
    Type(L"(+ 1 1)");
    WaitForOutput(L"(+ 1 1)\r\n2");
    Type(L"(progn");
    Type(L"(car 5))");
    WaitForOutput(L"; error: line 2: CAR needs a list as argument 1, not 5");
    Close();
}

TEST_F(Conversation, ACommandThatFailsLeavesNothingHalfDrawn) {
    const CTestFolder folder;
    Start({L"--drawing", L"out.svg"});
    Type(L"(draw-circle '(0 0) 5)");
    Type(L"(progn (draw-line '(0 0) '(9 9)) (draw-clear) (draw-line '(1 1) '(9 9)) (car 5))");
    WaitForOutput(L"not 5");
    Type(L"(defun *error* (text) (princ \"stopped\"))");
    Type(L"(progn (draw-line '(0 0) '(9 9)) (car 5))");
    WaitForOutput(L"stopped");
    Close();
    std::ifstream file(std::filesystem::path(folder.Path()) / L"out.svg");
    const std::string svg{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(svg.find("<circle"), std::string::npos);
    EXPECT_EQ(svg.find("<line"), std::string::npos) << svg;
}

TEST_F(Conversation, AnItemIsCheckedWhenItIsChosenAndWhenItsFilesChange) {
    const CTestFolder folder;
    folder.MakeFolder(L"items");
    folder.MakeFolder(L"items\\shelf");
    folder.Write(L"items\\shelf\\shelf.lsp",
                 "(defun shelf () (item-choose \"shelf\" '(\"low\")))\n"
                 "(defun item-choose (name variants) 1)");
    folder.Write(L"items\\shelf\\shelf.TXT", "Shelf\nShelf\nVAR\n$1 = \"Width\"d 900\nEND_VAR\n");
    folder.Write(L"items\\shelf\\shelf.png", "");
    Start({L"--items", L"items"});
    Choose(kItem);
    WaitForOutput(L"(shelf)\r\n1");
    const std::wstring output = TextOf(m_output);
    EXPECT_NE(output.find(L"; error: shelf.TXT:4:7: the label 'Width' has no placeholder"), output.npos);
    EXPECT_NE(output.find(L"; error: shelf.TXT:4:13: the type letter 'd' must be upper case"), output.npos);
    EXPECT_NE(output.find(L"; warning: shelf.lsp:1:40: the choice 'shelf_low' has no slide"), output.npos);
    Choose(kItem);
    WaitForOutput(L"(shelf)\r\n1\r\n(shelf)\r\n1");
    folder.Write(L"items\\shelf\\shelf_low_t.png", "");
    folder.Write(L"items\\shelf\\shelf.TXT", "Shelf\nShelf\nVAR\n$1 = \"<<1>>\"D 9 mm\nEND_VAR\n");
    WaitForOutput(L"[value-trailing-text]");
    Close();
}

TEST_F(Conversation, ItemsThatAppearAndDisappearAreNoticed) {
    const CTestFolder folder;
    folder.MakeFolder(L"items");
    Start({L"--items", L"items"});
    folder.MakeFolder(L"items\\gamma");
    folder.Write(L"items\\gamma\\gamma.lsp", "(defun gamma () (findfile \"gamma.lsp\"))");
    WaitForOutput(L"; the item gamma has been added");
    Choose(kItem);
    WaitForOutput(L"\\\\items\\\\gamma\\\\gamma.lsp\"");
    // Enter in the empty prompt repeats it.
    PostMessageW(m_prompt, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(WaitUntil([&] {
        const std::wstring output = TextOf(m_output);
        return output.find(L"(gamma)", output.find(L"(gamma)") + 1) != output.npos;
    }));
    std::filesystem::remove_all(folder.Path() + L"\\items\\gamma");
    WaitForOutput(L"; the item gamma has been removed");
    Close();
}

// The item alpha, which a test calls at the prompt: an upper-case name finds it as well.
void WriteAlpha(const CTestFolder& folder) {
    for (const wchar_t* name : {L"items", L"items\\alpha"}) {
        folder.MakeFolder(name);
    }
    folder.Write(L"items\\alpha\\alpha.lsp", "(princ \"loaded\") (defun alpha () 'called)");
}

TEST_F(Conversation, ATypedCallLoadsItsItemOnce) {
    const CTestFolder folder;
    WriteAlpha(folder);
    folder.Write(L"items\\alpha\\alpha.TXT", "Alpha\nAlpha\nVAR\n$1 = \"Width\"D 900\nEND_VAR\n");
    Start({L"--items", L"items"});
    Type(L"(Alpha) (alpha)");
    WaitForOutput(L"loaded\r\nCALLED\r\nCALLED");
    const std::wstring first = TextOf(m_output);
    EXPECT_TRUE(first.starts_with(L"(Alpha) (alpha)\r\n; ")) << "the checker's findings";
    EXPECT_NE(first.find(L"; error: alpha.TXT:4:7: the label 'Width' has no placeholder"), first.npos);
    Type(L"(alpha)");
    WaitForOutput(L"CALLED\r\n(alpha)\r\nCALLED");
    Choose(kItem);
    WaitForOutput(L"CALLED\r\n(alpha)\r\nloaded\r\nCALLED");
    Close();
}

TEST_F(Conversation, ATypedCallLoadsNoItemInsteadOfTheUsersFunction) {
    const CTestFolder folder;
    WriteAlpha(folder);
    Start({L"--items", L"items"});
    Type(L"(defun alpha () 'mine) (alpha)");
    WaitForOutput(L"\r\nALPHA\r\nMINE");
    Type(L"(setq alpha '(lambda () 'list)) (alpha)");
    WaitForOutput(L"\r\nLIST");
    Type(L"(setq alpha 5) (alpha)");
    WaitForOutput(L"\r\n5\r\nloaded\r\nCALLED");
    Close();
}

TEST_F(Conversation, ATypedCallOfAnItemWhoseRoutineDoesNotDefineItSaysSo) {
    const CTestFolder folder;
    WriteAlpha(folder);
    folder.Write(L"items\\alpha\\alpha.lsp", "(princ \"loaded\")");
    Start({L"--items", L"items"});
    Type(L"(alpha)");
    WaitForOutput(
        L"loaded\r\n; error: line 1: the function ALPHA is not defined: "
        L"check its name and whether the plug-in defines it");
    folder.Write(L"items\\alpha\\alpha.lsp", "(draw-line '(0 0) '(9 9)) (car 5)");
    Type(L"(alpha)");
    WaitForOutput(L"\r\n; error: alpha.lsp:1: CAR needs a list as argument 1, not 5");
    Type(L"(5) 6");
    WaitForOutput(L"(5) 6\r\n; error: line 1: 5 is not the name of a function");
    Close();
}

TEST_F(Conversation, ATypedCallFindsAnItemThatHasJustBeenMade) {
    const CTestFolder folder;
    folder.MakeFolder(L"items");
    Start({L"--items", L"items"});
    // In one evaluation, so that DevHost has no time to look for items in between.
    folder.MakeFolder(L"items\\alpha");
    Type(
        L"(progn (setq f (open \"items/alpha/alpha.lsp\" \"w\"))"
        L" (write-line \"(defun alpha () 'called)\" f) (close f)) (alpha)");
    WaitForOutput(L"; the item alpha has been added\r\nCALLED");
    std::filesystem::remove_all(folder.Path() + L"\\items\\alpha");
    Type(L"(setq alpha nil) (alpha)");
    WaitForOutput(
        L"; error: line 1: the function ALPHA is not defined: "
        L"check its name and whether the plug-in defines it");
    EXPECT_NE(TextOf(m_output).find(L"; the item alpha has been removed"), std::wstring::npos);
    Close();
}

TEST_F(Conversation, AFolderOfItemsMustExist) {
    const Outcome outcome = RunHost({L"--items", L"nowhere", L"--eval", L"1"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.errors,
              "DevHost: the folder of items 'nowhere' does not exist: give --items an existing folder\n");
    EXPECT_EQ(outcome.output, "");
}

TEST_F(Conversation, ReloadingBringsThePlugInsFunctionsBack) {
    Start();
    Type(L"(setq keep echo)");
    Choose(kReload);
    WaitForOutput(L"\r\n; the plug-in has been loaded again");
    Type(L"(echo 1)");
    WaitForOutput(L"(echo 1)\r\n(1)");
    Type(L"(defun echo (x) 'mine)");
    Choose(kReload);
    Type(L"(echo 2)");
    WaitForOutput(L"(echo 2)\r\n(2)");
    EXPECT_EQ(Close().output.find("blocks held,"), std::string::npos);
}

TEST_F(Conversation, APlugInThatHasGoneIsNamedAndItsFunctionsAreNotKnown) {
    const CTestFolder folder;
    std::filesystem::copy_file(TestPlugIn(), folder.Path() + L"\\plug.dll");
    m_host =
        std::make_unique<CHostProcess>(std::vector<std::wstring>{L"--plugin", L"plug.dll"}, EStart::Bare);
    m_output = m_host->Control(L"Edit", kOutput);
    m_prompt = m_host->Control(L"Edit", kPrompt);
    Type(L"(setq keep echo)");
    WaitForOutput(L"<function ECHO>");
    // In use a library can be renamed, if not removed.
    std::filesystem::rename(folder.Path() + L"\\plug.dll", folder.Path() + L"\\gone.dll");
    Choose(kReload);
    WaitForOutput(L"; error: the plug-in 'plug.dll' does not exist: give --plugin an existing file");
    Type(L"(echo 1)");
    WaitForOutput(L"the function ECHO is not defined: check its name and whether the plug-in defines it");
    Type(L"(keep 1)");
    WaitForOutput(L"; error: line 1: ECHO belongs to a plug-in that is no longer loaded");
    std::filesystem::rename(folder.Path() + L"\\gone.dll", folder.Path() + L"\\plug.dll");
    Choose(kReload);
    Type(L"(keep 1)");
    WaitForOutput(L"(keep 1)\r\n(1)");
    EXPECT_EQ(Close().status, 0u);
}

}  // namespace
