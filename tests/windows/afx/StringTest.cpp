#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

TEST(CString, KeepsTheNulsOfATextGivenWithItsLength) {
    const CString text(L"a\0b", 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text[2], L'b');
    EXPECT_TRUE(text + L"c" == CString(L"a\0bc", 4));
    EXPECT_TRUE(text.Mid(1) == CString(L"\0b", 2));
}

TEST(CString, IsEmptyForANullPointer) {
    EXPECT_TRUE(CString(static_cast<LPCTSTR>(nullptr)).IsEmpty());
    CString text = L"x";
    text = static_cast<LPCTSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, CutsPartsToTheText) {
    const CString text = L"abcdef";
    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Left(99), L"abcdef");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Right(99), L"abcdef");
    EXPECT_EQ(text.Mid(2), L"cdef");
    EXPECT_EQ(text.Mid(2, 2), L"cd");
    EXPECT_EQ(text.Mid(2, 99), L"cdef");
    EXPECT_EQ(text.Mid(99), L"");
}

TEST(CString, FindsTextsAndCharacters) {
    const CString text = L"one two one";
    EXPECT_EQ(text.Find(L"one"), 0);
    EXPECT_EQ(text.Find(L"one", 1), 8);
    EXPECT_EQ(text.Find(L'w'), 5);
    EXPECT_EQ(text.Find(L"three"), -1);
    EXPECT_EQ(text.ReverseFind(L'o'), 8);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(text.FindOneOf(L"xtw"), 4);
}

TEST(CString, ReplacesEveryOccurrenceOnce) {
    CString text = L"aXaXa";
    EXPECT_EQ(text.Replace(L"a", L"aa"), 3);
    EXPECT_EQ(text, L"aaXaaXaa");
    EXPECT_EQ(text.Replace(L'X', L'-'), 2);
    EXPECT_EQ(text, L"aa-aa-aa");
    EXPECT_EQ(text.Replace(L"-aa", L""), 2);
    EXPECT_EQ(text, L"aa");
    EXPECT_EQ(text.Replace(L"z", L"y"), 0);
}

TEST(CString, InsertsDeletesAndTrims) {
    CString text = L" \tac ";
    EXPECT_EQ(text.Trim(), L"ac");
    EXPECT_EQ(text.Insert(1, L"b"), 3);
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(text.Delete(0), 2);
    EXPECT_EQ(text, L"bc");
    EXPECT_EQ(CString(L"  ").Trim(), L"");
    EXPECT_EQ(CString(L" a ").TrimLeft(), L"a ");
    EXPECT_EQ(CString(L" a ").TrimRight(), L" a");
}

TEST(CString, ComparesByCodeUnits) {
    EXPECT_GT(CString(L"a").Compare(L"B"), 0);
    EXPECT_LT(CString(L"a").CompareNoCase(L"B"), 0);
    EXPECT_EQ(CString(L"aB").CompareNoCase(L"Ab"), 0);
    EXPECT_TRUE(CString(L"B") < CString(L"a"));
    EXPECT_TRUE(L"x" == CString(L"x"));
    EXPECT_TRUE(CString(L"x") != L"y");
}

TEST(CString, TakesWhatIsWrittenIntoItsBuffer) {
    CString text;
    LPTSTR buffer = text.GetBuffer(10);
    lstrcpyW(buffer, L"abc");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 3);
    lstrcpyW(text.GetBuffer(10), L"defgh");
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, L"de");
}

TEST(CString, LoadsAResourceAndIsEmptyWithoutOne) {
    CString text;
    EXPECT_TRUE(text.LoadString(100));
    EXPECT_EQ(text, L"TavrinWnd");
    EXPECT_FALSE(text.LoadString(GetModuleHandle(nullptr), 4711));
    EXPECT_TRUE(text.IsEmpty());
}

}  // namespace
