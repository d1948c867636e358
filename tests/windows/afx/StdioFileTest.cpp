#include <afx.h>
#include <gtest/gtest.h>

#include <chrono>

#include "tests/windows/support/TempFolder.h"

namespace {

class StdioFile : public testing::Test {
protected:
    std::vector<std::wstring> ReadLines(const std::string& bytes) {
        m_folder.Write(L"in.txt", bytes);
        CStdioFile file(m_folder.Path(L"in.txt").c_str(), CFile::modeRead | CFile::typeText);
        std::vector<std::wstring> lines;
        for (CString line; file.ReadString(line);) {
            lines.emplace_back(line.GetString(), static_cast<size_t>(line.GetLength()));
        }
        file.Close();
        return lines;
    }

    // What a file holds after all lines of another were written to it, each with a line end.
    std::string Copy(const std::string& bytes) {
        CStdioFile file(m_folder.Path(L"out.txt").c_str(),
                        CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        for (const std::wstring& line : ReadLines(bytes)) {
            WriteLine(file, line);
            file.WriteString(L"\n");
        }
        file.Close();
        return m_folder.Read(L"out.txt");
    }

    // A file object whose handle allows no writing, as when the disk or the network fails later on.
    void OpenForFailingWrites(CStdioFile& file) {
        const std::wstring path = m_folder.Path(L"out.txt");
        ASSERT_TRUE(file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeText));
        CloseHandle(file.m_hFile);
        file.m_hFile = CreateFile(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    }

    CTempFolder m_folder;

private:
    // WriteString ends at a NUL, so the pieces between NULs are written, and the NULs as bytes.
    static void WriteLine(CStdioFile& file, const std::wstring& line) {
        for (size_t at = 0;; ++at) {
            file.WriteString(line.c_str() + at);
            at = line.find(L'\0', at);
            if (at == std::wstring::npos) {
                return;
            }
            file.Write("", 1);
        }
    }
};

using Lines = std::vector<std::wstring>;

TEST_F(StdioFile, ReadsCrLfAndLfAsLineEnds) {
    EXPECT_EQ(ReadLines("a\r\nb\nc\r\n"), (Lines{L"a", L"b", L"c"}));
}

TEST_F(StdioFile, ReadsALastLineWithoutALineEnd) {
    EXPECT_EQ(ReadLines("a\r\nb"), (Lines{L"a", L"b"}));
    EXPECT_EQ(ReadLines("a"), (Lines{L"a"}));
}

TEST_F(StdioFile, ReadsAnEmptyFileAsNoLine) {
    EXPECT_EQ(ReadLines(""), Lines{});
}

TEST_F(StdioFile, ReadsEmptyLines) {
    EXPECT_EQ(ReadLines("\r\n\n\r\nx"), (Lines{L"", L"", L"", L"x"}));
}

TEST_F(StdioFile, TakesACrThatNoLfFollowsAsACharacter) {
    EXPECT_EQ(ReadLines("a\rb\r\r\nc\r"), (Lines{L"a\rb\r", L"c\r"}));
    EXPECT_EQ(Copy("a\rb\r\r\nc\r\n"), "a\rb\r\r\nc\r\n");
}

TEST_F(StdioFile, ReadsOnBehindNulsAndControlZ) {
    using namespace std::string_literals;
    EXPECT_EQ(ReadLines("a\0b\r\nc\x1A"s + "d\r\ne"), (Lines{L"a\0b"s, L"c\x1A"s + L"d", L"e"}));
    EXPECT_EQ(Copy("a\0b\0\r\n\0\r\nc\x1A"s + "d\r\n"), "a\0b\0\r\n\0\r\nc\x1A"s + "d\r\n");
}

TEST_F(StdioFile, TakesByteOrderMarksAsCharacters) {
    EXPECT_EQ(ReadLines("\xEF\xBB\xBF$1\r\nx"), (Lines{L"\u00EF\u00BB\u00BF$1", L"x"}));
    EXPECT_EQ(Copy("\xFF\xFE"
                   "a\r\n"),
              "\xFF\xFE"
              "a\r\n");
}

TEST_F(StdioFile, ReadsAByteAsTheCodeUnitOfItsNumberInTheCLocale) {
    std::string bytes;
    std::wstring units;
    for (int number = 0x80; number <= 0xFF; ++number) {
        bytes += static_cast<char>(number);
        units += static_cast<wchar_t>(number);
    }
    EXPECT_EQ(ReadLines(bytes + "\n"), Lines{units});
    EXPECT_EQ(Copy(bytes + "\r\n"), bytes + "\r\n");
}

TEST_F(StdioFile, WritesLfAsCrLf) {
    EXPECT_EQ(Copy("a\nb\n"), "a\r\nb\r\n");
}

TEST_F(StdioFile, JoinsALineThatCrossesItsBuffers) {
    // Around every length near the buffer's size, so that CR and LF fall on either side of its end.
    for (size_t length = 0x10000 - 3; length <= 0x10000 + 3; ++length) {
        const std::string first(length, 'x');
        EXPECT_EQ(ReadLines(first + "\r\nnext\r\n"), (Lines{std::wstring(length, L'x'), L"next"})) << length;
        EXPECT_EQ(Copy(first + "\r\nnext\r\n"), first + "\r\nnext\r\n") << length;
    }
}

TEST_F(StdioFile, ReadsLinesOfMegabytesInLinearTime) {
    const std::string line(8'000'000, 'y');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Copy(line + "\r\nz\r\n").size(), line.size() + 5);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(StdioFile, ThrowsWhatKeepsItFromOpening) {
    try {
        CStdioFile file(m_folder.Path(L"missing.txt").c_str(), CFile::modeRead | CFile::typeText);
        FAIL() << "opened";
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_cause, CFileException::fileNotFound);
        EXPECT_EQ(error->m_lOsError, ERROR_FILE_NOT_FOUND);
        EXPECT_EQ(error->m_strFileName, m_folder.Path(L"missing.txt").c_str());
        error->Delete();
    }
}

TEST_F(StdioFile, ReportsWhatKeepsItFromOpeningWithoutThrowing) {
    CStdioFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(m_folder.Path(L"no\\folder.txt").c_str(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_EQ(error.m_lOsError, ERROR_PATH_NOT_FOUND);
    EXPECT_FALSE(file.Open(m_folder.Path(L"missing.txt").c_str(), CFile::modeRead));
}

TEST_F(StdioFile, SharesNothingUnlessAskedTo) {
    m_folder.Write(L"in.txt", "a");
    const std::wstring path = m_folder.Path(L"in.txt");
    CFileException error;
    CStdioFile first(path.c_str(), CFile::modeRead), second;
    EXPECT_FALSE(second.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone, &error));
    EXPECT_EQ(error.m_cause, CFileException::sharingViolation);
    first.Close();
    EXPECT_TRUE(first.Open(path.c_str(), CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_TRUE(second.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone));
}

TEST_F(StdioFile, ThrowsFromCloseWhatKeepsTheRestFromBeingWritten) {
    CStdioFile file;
    OpenForFailingWrites(file);
    file.WriteString(L"text");
    try {
        file.Close();
        FAIL() << "closed";
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_cause, CFileException::accessDenied);
        EXPECT_EQ(error->m_lOsError, ERROR_ACCESS_DENIED);
        error->Delete();
    }
    EXPECT_EQ(file.m_hFile, INVALID_HANDLE_VALUE) << "closed all the same";
}

TEST_F(StdioFile, ThrowsFromCloseWhatKeepsTheHandleFromClosing) {
    CStdioFile file(m_folder.Path(L"out.txt").c_str(),
                    CFile::modeCreate | CFile::modeWrite | CFile::typeText);
    CloseHandle(file.m_hFile);
    EXPECT_THROW(file.Close(), CFileException*);
}

TEST_F(StdioFile, ThrowsWhatKeepsItFromWritingOnceItsBufferIsFull) {
    CStdioFile file;
    OpenForFailingWrites(file);
    EXPECT_THROW(file.WriteString(CString(L'x', 100000)), CFileException*);
    file.Abort();
}

TEST_F(StdioFile, ThrowsWhatKeepsItFromReading) {
    m_folder.Write(L"in.txt", "a");
    CStdioFile file(m_folder.Path(L"in.txt").c_str(), CFile::modeRead);
    CloseHandle(file.m_hFile);
    CString line;
    EXPECT_THROW(file.ReadString(line), CFileException*);
    file.Abort();
}

// A handle whose first write fails, as on a disk that is full for a moment.
TEST_F(StdioFile, ClosingWritesNothingOfAFailedWrite) {
    CStdioFile file;
    OpenForFailingWrites(file);
    file.WriteString(L"before");
    EXPECT_THROW(file.WriteString(CString(L'x', 100000)), CFileException*);
    CloseHandle(file.m_hFile);
    file.m_hFile =
        CreateFile(m_folder.Path(L"out.txt").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    file.Close();
    EXPECT_EQ(m_folder.Read(L"out.txt"), "");
}

TEST_F(StdioFile, AFileOpenedForWritingIsNotReadAndKeepsItsText) {
    CStdioFile file(m_folder.Path(L"out.txt").c_str(), CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"text\n");
    CString line;
    EXPECT_THROW(file.ReadString(line), CFileException*);
    EXPECT_EQ(file.GetLength(), 6u) << "nothing is left to be written";
    file.Close();
    EXPECT_EQ(m_folder.Read(L"out.txt"), "text\r\n");
}

TEST_F(StdioFile, RefusesACharacterThatTheLocaleCannotExpress) {
    CStdioFile file(m_folder.Path(L"out.txt").c_str(), CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"b");
    try {
        file.WriteString(L"a\u20ACb");
        FAIL() << "written";
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_lOsError, ERROR_NO_UNICODE_TRANSLATION);
        error->Delete();
    }
    EXPECT_EQ(file.GetLength(), 1u) << "what was written before is in the file";
    file.WriteString(L"c");
    file.Close();
    EXPECT_EQ(m_folder.Read(L"out.txt"), "bc");
}

TEST_F(StdioFile, AbandonsWhatIsBufferedOnAbort) {
    CStdioFile file(m_folder.Path(L"out.txt").c_str(), CFile::modeCreate | CFile::modeWrite);
    file.WriteString(L"text");
    file.Abort();
    EXPECT_EQ(m_folder.Read(L"out.txt"), "");
}

TEST_F(StdioFile, WritesWhatIsBufferedWhenItIsDestroyed) {
    {
        CStdioFile(m_folder.Path(L"out.txt").c_str(), CFile::modeCreate | CFile::modeWrite)
            .WriteString(L"a\n");
    }
    EXPECT_EQ(m_folder.Read(L"out.txt"), "a\r\n");
}

TEST(File, ReadsAndWritesBytesAsTheyAre) {
    const CTempFolder folder;
    const std::wstring path = folder.Path(L"f.bin");
    CFile file(path.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
    file.Write("a\nb\0\x1A", 5);
    file.Close();
    EXPECT_EQ(folder.Read(L"f.bin"), std::string("a\nb\0\x1A", 5));
    ASSERT_TRUE(file.Open(path.c_str(), CFile::modeRead | CFile::typeBinary));
    EXPECT_EQ(file.GetLength(), 5u);
    char bytes[4];
    EXPECT_EQ(file.Read(bytes, 4), 4u);
    EXPECT_EQ(file.Read(bytes, 4), 1u);
    EXPECT_EQ(file.Read(bytes, 4), 0u);
}

}  // namespace
