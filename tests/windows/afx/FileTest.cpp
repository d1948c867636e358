#include <afx.h>
#include <gtest/gtest.h>

#include "tests/windows/support/TempFolder.h"

namespace {

class File : public testing::Test {
protected:
    CTempFolder m_folder;
};

TEST_F(File, ReadsAndWritesBytesAsTheyAre) {
    const std::wstring path = m_folder.Path(L"f.bin");
    CFile file(path.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
    file.Write("a\nb\0\x1A", 5);
    file.Close();
    EXPECT_EQ(m_folder.Read(L"f.bin"), std::string("a\nb\0\x1A", 5));
    ASSERT_TRUE(file.Open(path.c_str(), CFile::modeRead | CFile::typeBinary));
    EXPECT_EQ(file.GetLength(), 5u);
    char bytes[4];
    EXPECT_EQ(file.Read(bytes, 4), 4u);
    EXPECT_EQ(file.Read(bytes, 4), 1u);
    EXPECT_EQ(file.Read(bytes, 4), 0u);
}

TEST_F(File, IsEmptiedWhenCreatedUnlessToldOtherwise) {
    m_folder.Write(L"old.txt", "old");
    const std::wstring path = m_folder.Path(L"old.txt");
    CFile file(path.c_str(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
    EXPECT_EQ(file.GetLength(), 3u);
    file.Close();
    ASSERT_TRUE(file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(file.GetLength(), 0u);
    file.Close();
    EXPECT_TRUE(file.Open(m_folder.Path(L"new.txt").c_str(),
                          CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite));
}

TEST_F(File, ThrowsWhatKeepsItFromOpening) {
    try {
        CFile file(m_folder.Path(L"missing.txt").c_str(), CFile::modeRead | CFile::typeBinary);
        FAIL() << "opened";
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_cause, CFileException::fileNotFound);
        EXPECT_EQ(error->m_lOsError, ERROR_FILE_NOT_FOUND);
        EXPECT_EQ(error->m_strFileName, m_folder.Path(L"missing.txt").c_str());
        error->Delete();
    }
}

TEST_F(File, ReportsWhatKeepsItFromOpeningWithoutThrowing) {
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(m_folder.Path(L"no\\folder.txt").c_str(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_EQ(error.m_lOsError, ERROR_PATH_NOT_FOUND);
    EXPECT_FALSE(file.Open(m_folder.Path(L"missing.txt").c_str(), CFile::modeRead));
}

TEST_F(File, SaysInOneLineWhatKeepsItFromOpening) {
    CFile file;
    CFileException error;
    const std::wstring path = m_folder.Path(L"missing.txt");
    ASSERT_FALSE(file.Open(path.c_str(), CFile::modeRead, &error));
    TCHAR text[512];
    ASSERT_TRUE(error.GetErrorMessage(text, 512));
    const std::wstring message = text;
    EXPECT_TRUE(message.starts_with(path + L": "));
    EXPECT_GT(message.size(), path.size() + 2);
    EXPECT_EQ(message.find_first_of(L"\r\n"), std::wstring::npos);
}

TEST_F(File, ReportsABadPathForANameThatIsTooLong) {
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(CString(L'x', MAX_PATH), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_EQ(error.m_lOsError, -1) << "the system is not asked";
}

TEST_F(File, SharesNothingUnlessAskedTo) {
    m_folder.Write(L"in.txt", "a");
    const std::wstring path = m_folder.Path(L"in.txt");
    CFileException error;
    CFile first(path.c_str(), CFile::modeRead), second;
    EXPECT_FALSE(second.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone, &error));
    EXPECT_EQ(error.m_cause, CFileException::sharingViolation);
    first.Close();
    EXPECT_TRUE(first.Open(path.c_str(), CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_TRUE(second.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone));
}

TEST_F(File, ThrowsWhatKeepsItFromReadingWritingAndClosing) {
    CFile file(m_folder.Path(L"out.txt").c_str(), CFile::modeCreate | CFile::modeWrite);
    CloseHandle(file.m_hFile);
    char byte = 'a';
    EXPECT_THROW(file.Write(&byte, 1), CFileException*);
    EXPECT_THROW(file.Read(&byte, 1), CFileException*);
    EXPECT_THROW(file.GetLength(), CFileException*);
    EXPECT_THROW(file.Close(), CFileException*);
    EXPECT_EQ(file.m_hFile, INVALID_HANDLE_VALUE) << "closed nevertheless";
}

}  // namespace
