// Files of LISP: sources that are loaded, texts that routines read and write.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

namespace fs = std::filesystem;

class LispFiles : public CLispTest {
protected:
    LispFiles() : m_folder(fs::temp_directory_path() / ("lisp_files_" + Unique())) {
        fs::create_directories(m_folder);
        m_evaluator.Run(ReadText(L"(setq name \"" + Path(L"file.txt") + L"\")"));
    }
    ~LispFiles() override { fs::remove_all(m_folder); }

    static std::string Unique() {
        return testing::UnitTest::GetInstance()->current_test_info()->name() + std::string("_") +
               std::to_string(testing::UnitTest::GetInstance()->random_seed());
    }

    std::wstring Path(const std::wstring& name) const { return (m_folder / name).wstring(); }

    std::string Bytes(const std::wstring& name) const {
        std::ifstream stream(fs::path(Path(name)), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    // Makes a file that LISP finds by its name.
    void Write(const std::wstring& name, const std::string& bytes) {
        std::ofstream(fs::path(Path(name)), std::ios::binary) << bytes;
        m_host.files[name] = Path(name);
    }

    fs::path m_folder;
};

TEST_F(LispFiles, WrittenLinesEndAsWindowsWantsItAndAreReadBack) {
    Evaluate(
        L"(setq f (open name \"w\")) (write-line \"one\" f) (princ \"two\\nthree\" f) (prin1 \"q\" f)"
        L"(write-char 10 f) (print 5 f) (close f)");
    EXPECT_EQ(Bytes(L"file.txt"), "one\r\ntwo\r\nthree\"q\"\r\n\r\n5 ");
    ExpectValues(
        {{L"(setq f (open name \"r\")) (list (read-line f) (read-line f) (read-line f))",
          L"(\"one\" \"two\" \"three\\\"q\\\"\")"},
         {L"(list (read-line f) (read-line f) (read-line f) (read-line f))", L"(\"\" \"5 \" nil nil)"},
         {L"(close f)", L"nil"},
         {L"(close f)", L"nil"}});
}

TEST_F(LispFiles, AppendingKeepsWhatIsThere) {
    Write(L"file.txt", "old\r\n");
    Evaluate(L"(setq f (open name \"a\")) (write-line \"new\" f) (close f)");
    EXPECT_EQ(Bytes(L"file.txt"), "old\r\nnew\r\n");
}

TEST_F(LispFiles, BothKindsOfLineEndsAreRead) {
    Write(L"file.txt", "a\nb\r\n\nc");
    ExpectValues({{L"(setq f (open name \"r\")) (list (read-line f) (read-line f) (read-line f) (read-line f)"
                   L" (read-line f))",
                   L"(\"a\" \"b\" \"\" \"c\" nil)"},
                  {L"(setq f (open name \"r\")) (list (read-char f) (read-char f) (read-char f) (read-char f)"
                   L" (read-char f) (read-char f) (read-char f))",
                   L"(97 10 98 10 10 99 nil)"}});
}

TEST_F(LispFiles, EveryByteSurvives) {
    std::string bytes;
    for (int i = 1; i < 256; ++i) {
        if (i != '\n' && i != '\r') {
            bytes += static_cast<char>(i);
        }
    }
    Write(L"file.txt", bytes + "\r\n");
    Evaluate(
        L"(setq f (open name \"r\") l (read-line f)) (close f)"
        L"(setq f (open name \"w\")) (write-line l f) (close f)");
    EXPECT_EQ(Bytes(L"file.txt"), bytes + "\r\n");
    ExpectValues({{L"(strlen l)", L"253"}, {L"(ascii (substr l 126 1))", L"8364"}});
}

TEST_F(LispFiles, ACharacterThatTheFileCannotHoldIsAnErrorAndNothingIsWritten) {
    EXPECT_EQ(ErrorOf(L"(setq f (open name \"w\")) (write-line \"ok\" f) (write-line \"a\u0416b\" f)"),
              L"line 1: WRITE-LINE: the file '" + Path(L"file.txt") +
                  L"' cannot hold the character U+0416: text files are Windows-1252");
    EXPECT_EQ(ErrorOf(L"(write-line (strcat (chr 55357) (chr 56938)) f)"),
              L"line 1: WRITE-LINE: the file '" + Path(L"file.txt") +
                  L"' cannot hold the character U+1F66A: text files are Windows-1252");
    Evaluate(L"(close f)");
    EXPECT_EQ(Bytes(L"file.txt"), "ok\r\n");
}

TEST_F(LispFiles, WhatCannotBeOpenedIsNil) {
    ExpectValues({{L"(open name \"r\")", L"nil"}});
    m_evaluator.Run(ReadText(L"(setq name \"" + m_folder.wstring() + L"\")"));
    ExpectValues({{L"(open name \"r\")", L"nil"},
                  {L"(open name \"w\")", L"nil"},
                  {L"(open (strcat name \"/no/where\") \"w\")", L"nil"}});
    ExpectErrors(
        {{L"(open name \"x\")", L"OPEN needs \"r\", \"w\" or \"a\" as argument 2, not \"x\""},
         {L"(open 5 \"r\")", L"OPEN needs a string as argument 1, not 5"},
         {L"(close 5)", L"CLOSE needs an open file as argument 1, not 5"},
         {L"(read-line 5)", L"READ-LINE needs an open file as argument 1, not 5"},
         {L"(read-line (open \"none\" \"r\"))", L"READ-LINE needs an open file as argument 1, not nil"}});
    EXPECT_TRUE(m_host.asked.empty()) << "the lines of a file that was not opened must not be requested";
}

TEST_F(LispFiles, AFileIsUsedAsItWasOpened) {
    Write(L"file.txt", "a\n");
    const std::wstring file = L": the file '" + Path(L"file.txt") + L"' ";
    EXPECT_EQ(ErrorOf(L"(setq f (open name \"r\")) (write-line \"b\" f)"),
              L"line 1: WRITE-LINE" + file + L"is open for reading: open it with \"w\" or \"a\"");
    EXPECT_EQ(ErrorOf(L"(setq f (open name \"a\")) (read-line f)"),
              L"line 1: READ-LINE" + file + L"is open for writing: open it with \"r\"");
    EXPECT_EQ(ErrorOf(L"(close f) (write-line \"b\" f)"), L"line 1: WRITE-LINE" + file + L"is closed");
    EXPECT_EQ(ErrorOf(L"(prin1 5 f)"), L"line 1: PRIN1" + file + L"is closed");
    EXPECT_EQ(ErrorOf(L"(read-char f)"), L"line 1: READ-CHAR" + file + L"is closed");
    ExpectValues({{L"(type f)", L"FILE"}});
    EXPECT_EQ(Evaluate(L"f"), L"<file " + Path(L"file.txt") + L">");
}

TEST_F(LispFiles, FilesAreFoundByTheHost) {
    m_host.files[L"a.txt"] = L"C:\\items\\a.txt";
    ExpectValues({{L"(findfile \"a.txt\")", L"\"C:\\\\items\\\\a.txt\""}, {L"(findfile \"b.txt\")", L"nil"}});
}

TEST_F(LispFiles, LoadRunsAFileAndGivesItsLastValue) {
    Write(L"a.lsp", "(setq a 1)\n(defun f () (+ a 1))\n(f)");
    ExpectValues({{L"(load \"a.lsp\")", L"2"},
                  {L"(load \"a\")", L"2"},
                  {L"a", L"1"},
                  {L"(load \"none\" 'otherwise)", L"OTHERWISE"}});
    ExpectErrors({{L"(load \"none\")",
                   L"LOAD: the file 'none.lsp' was not found: check its name and the search folders"}});
}

TEST_F(LispFiles, ErrorsInAFileNameFileLineAndFunction) {
    Write(L"bad.lsp",
          "; comment\n(defun inner (x)\n  (list\n    (strcat x)))\n(defun outer (x)\n  (inner x))\n");
    Evaluate(L"(load \"bad.lsp\")");
    EXPECT_EQ(ErrorOf(L"(outer 5)"),
              L"bad.lsp:6 in OUTER > bad.lsp:4 in INNER: STRCAT needs a string as argument 1, not 5");
    EXPECT_EQ(ErrorOf(L"\n(outer)"), L"line 2: OUTER takes 1 argument, not 0");
    Write(L"top.lsp", "(setq a 1)\n\n(car a)\n");
    EXPECT_EQ(ErrorOf(L"(load \"top.lsp\")"), L"top.lsp:3: CAR needs a list as argument 1, not 1");
    Write(L"calls.lsp", "(load \"bad.lsp\")\n(outer\n  \"a\")\n(mapcar\n  'outer '(1))");
    EXPECT_EQ(
        ErrorOf(L"(load \"calls.lsp\")"),
        L"calls.lsp:4 > bad.lsp:6 in OUTER > bad.lsp:4 in INNER: STRCAT needs a string as argument 1, not 1");
}

// Such as the drawing of an item, which item.lsp calls.
TEST_F(LispFiles, AQuotedFunctionIsNamedByTheFileWhereItStands) {
    Write(L"lib.lsp", "(defun each (f)\n  (apply f '(1)))\n(defun draw (x)\n  (car x))\n");
    Write(L"item.lsp", "(load \"lib.lsp\")\n(defun item ()\n  (each\n    '(lambda (x)\n      (draw x))))\n");
    Evaluate(L"(load \"item.lsp\")");
    EXPECT_EQ(
        ErrorOf(L"(item)"),
        L"item.lsp:3 in ITEM > lib.lsp:2 in EACH > item.lsp:5 in LAMBDA > lib.lsp:4 in DRAW: CAR needs a "
        L"list as argument 1, not 1");
    EXPECT_EQ(
        ErrorOf(L"(each '(lambda (x)\n  (draw x)))"),
        L"lib.lsp:2 in EACH > line 2 in LAMBDA > lib.lsp:4 in DRAW: CAR needs a list as argument 1, not 1");
}

TEST_F(LispFiles, AFileWithASyntaxErrorIsNotRunAtAll) {
    Write(L"half.lsp", "(setq half T)\n(setq b (list 1 2)\n");
    EXPECT_EQ(ErrorOf(L"(load \"half.lsp\")"), L"half.lsp:2:1: a parenthesis is not closed");
    ExpectValues({{L"half", L"nil"}});
}

TEST_F(LispFiles, AFileThatLoadsItselfEndsWithAnError) {
    Write(L"self.lsp", "(load \"self.lsp\")");
    const std::wstring text = ErrorOf(L"(load \"self.lsp\")");
    EXPECT_TRUE(text.starts_with(L"self.lsp:1 > self.lsp:1 > self.lsp:1 > ("))
        << testing::PrintToString(text);
    EXPECT_TRUE(
        text.ends_with(L"> self.lsp:1: calls are nested too deep: does the recursion come to an end?"))
        << testing::PrintToString(text);
}

TEST_F(LispFiles, SourcesAreUtf8OrWindows1252) {
    Write(L"utf8.lsp", "\xEF\xBB\xBF\"per\xC3\xB2 \xE2\x82\xAC\"");
    Write(L"ansi.lsp", "\"per\xF2 \x80\"");
    for (const wchar_t* name : {L"utf8", L"ansi"}) {
        EXPECT_EQ(Evaluate(std::wstring(L"(load \"") + name + L"\")"), L"\"però €\"");
    }
}

TEST_F(LispFiles, ASourceInUtf16IsNamed) {
    for (const std::string start : {"\xFF\xFE", "\xFE\xFF"}) {
        Write(L"wide.lsp", start + std::string("5\0", 2));
        EXPECT_EQ(ErrorOf(L"(load \"wide\")"), L"line 1: the file 'wide.lsp' is UTF-16: save it as UTF-8");
    }
}

}  // namespace
