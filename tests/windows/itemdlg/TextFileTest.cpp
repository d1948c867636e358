#include "itemdlg/TextFile.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>

#include "tests/windows/support/TempFolder.h"

using namespace tavrin::itemdlg;

namespace {

using Lines = std::vector<std::wstring>;

class TextFile : public testing::Test {
protected:
    Lines ReadBytes(const std::string& bytes) const {
        m_folder.Write(L"file", bytes);
        Lines lines;
        EXPECT_TRUE(ReadTextFile(m_folder.Path(L"file"), lines));
        return lines;
    }

    // What a file becomes by being read and written.
    std::string RoundTrip(const std::string& bytes) const {
        EXPECT_TRUE(WriteTextFile(m_folder.Path(L"file"), ReadBytes(bytes)));
        return m_folder.Read(L"file");
    }

    CTempFolder m_folder;
};

TEST_F(TextFile, CrLfAndLfEndALine) {
    EXPECT_EQ(ReadBytes("a\r\nb\nc\r\n"), (Lines{L"a", L"b", L"c"}));
    EXPECT_EQ(RoundTrip("a\r\nb\nc\r\n"), "a\r\nb\r\nc\r\n");
}

TEST_F(TextFile, AMissingFinalLineEndLosesNothing) {
    EXPECT_EQ(ReadBytes("a\r\nb"), (Lines{L"a", L"b"}));
    EXPECT_EQ(RoundTrip("a\r\nb"), "a\r\nb\r\n");
}

TEST_F(TextFile, EmptyLinesCount) {
    EXPECT_EQ(ReadBytes("\n\r\na\n\n"), (Lines{L"", L"", L"a", L""}));
    EXPECT_EQ(RoundTrip("\n\r\na\n\n"), "\r\n\r\na\r\n\r\n");
}

TEST_F(TextFile, AnEmptyFileHasNoLines) {
    EXPECT_EQ(ReadBytes(""), Lines{});
    EXPECT_EQ(RoundTrip(""), "");
}

TEST_F(TextFile, AFileOfOneLine) {
    EXPECT_EQ(ReadBytes("one"), Lines{L"one"});
    EXPECT_EQ(ReadBytes("\n"), Lines{L""});
}

TEST_F(TextFile, ALoneCarriageReturnIsACharacter) {
    EXPECT_EQ(ReadBytes("a\rb\nc\n"), (Lines{L"a\rb", L"c"}));
    EXPECT_EQ(RoundTrip("a\rb\r\r\nc\r\n\r"), "a\rb\r\r\nc\r\n\r\r\n");
}

TEST_F(TextFile, ANulIsACharacter) {
    using namespace std::string_literals;
    EXPECT_EQ(ReadBytes("a\0b\n\0\nc"s), (Lines{L"a\0b"s, L"\0"s, L"c"}));
    EXPECT_EQ(RoundTrip("a\0b\0\0\r\n\0\r\nc\r\n"s), "a\0b\0\0\r\n\0\r\nc\r\n"s);
}

TEST_F(TextFile, TheOldEndOfFileMarkIsACharacter) {
    EXPECT_EQ(ReadBytes("a\x1A"
                        "b\nc\n"),
              (Lines{L"a\x1A"
                     L"b",
                     L"c"}));
    EXPECT_EQ(RoundTrip("a\r\n\x1A\r\nc\r\n\x1A"), "a\r\n\x1A\r\nc\r\n\x1A\r\n");
}

TEST_F(TextFile, EveryByteSurvives) {
    std::string line;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n') {
            line += static_cast<char>(byte);
        }
    }
    EXPECT_EQ(RoundTrip(line + "\r\n"), line + "\r\n");
}

TEST_F(TextFile, TheMarksOfUtf8AndUtf16AreCharactersOfTheFirstLine) {
    EXPECT_EQ(ReadBytes("\xEF\xBB\xBFVAR\nx\n"), (Lines{L"\u00EF\u00BB\u00BFVAR", L"x"}));
    EXPECT_EQ(RoundTrip("\xEF\xBB\xBFVAR\r\nx\r\n"), "\xEF\xBB\xBFVAR\r\nx\r\n");
    EXPECT_EQ(RoundTrip("\xFF\xFE\r\nx\r\n"), "\xFF\xFE\r\nx\r\n");
}

TEST_F(TextFile, ALineOfAMegabyteIsOneLine) {
    const std::string line(1 << 20, 'x');
    const Lines lines = ReadBytes(line + "\r\nnext\r\n");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].size(), line.size());
    EXPECT_EQ(RoundTrip(line + "\r\nnext\r\n"), line + "\r\nnext\r\n");
}

// Around every length near the size of the pieces that are read and written, so that CR and LF fall on either
// side.
TEST_F(TextFile, LinesCrossThePiecesThatAreReadAndWritten) {
    for (size_t length = 0x10000 - 3; length <= 0x10000 + 3; ++length) {
        const std::string bytes = std::string(length, 'x') + "\r\nnext\r\n";
        EXPECT_EQ(ReadBytes(bytes), (Lines{std::wstring(length, L'x'), L"next"})) << length;
        EXPECT_TRUE(RoundTrip(bytes) == bytes) << length;
    }
}

TEST_F(TextFile, LinesOfMegabytesTakeLinearTime) {
    const std::string bytes = std::string(8'000'000, 'y') + "\r\nz\r\n";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(RoundTrip(bytes) == bytes);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

// Its size alone is looked at: the file is a hole.
TEST_F(TextFile, AFileOfTwoGigabytesIsNotOpened) {
    constexpr LONGLONG kTwoGigabytes = 1LL << 31;
    const std::wstring path = m_folder.Path(L"file");
    for (const LONGLONG size : {kTwoGigabytes, 3 * kTwoGigabytes}) {
        const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        LARGE_INTEGER end;
        end.QuadPart = size;
        ASSERT_TRUE(SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file));
        CloseHandle(file);
        Lines lines;
        EXPECT_FALSE(ReadTextFile(path, lines)) << size;
        EXPECT_EQ(lines, Lines{});
    }
}

TEST_F(TextFile, ALineFeedInALineEndsALine) {
    EXPECT_TRUE(WriteTextFile(m_folder.Path(L"file"), {L"a\nb"}));
    EXPECT_EQ(m_folder.Read(L"file"), "a\r\nb\r\n");
}

TEST_F(TextFile, ACharacterThatTheLocaleCannotExpressEndsTheWriting) {
    EXPECT_FALSE(WriteTextFile(m_folder.Path(L"file"), {L"first", L"a\u20ACb", L"last"}));
    EXPECT_EQ(m_folder.Read(L"file"), "first\r\n");
}

TEST_F(TextFile, AFileThatCannotBeOpenedIsReported) {
    Lines lines = {L"kept"};
    EXPECT_FALSE(ReadTextFile(m_folder.Path(L"missing"), lines));
    EXPECT_EQ(lines, Lines{L"kept"});
    EXPECT_FALSE(WriteTextFile(m_folder.Path(L"no such folder\\file"), {L"a"}));
}

TEST_F(TextFile, AFileThatAnotherProgramHoldsIsReportedAndUnchanged) {
    m_folder.Write(L"file", "before");
    const HANDLE lock =
        CreateFileW(m_folder.Path(L"file").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    Lines lines;
    EXPECT_FALSE(ReadTextFile(m_folder.Path(L"file"), lines));
    EXPECT_FALSE(WriteTextFile(m_folder.Path(L"file"), {L"after"}));
    CloseHandle(lock);
    EXPECT_EQ(m_folder.Read(L"file"), "before");
}

}  // namespace
