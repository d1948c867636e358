#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

TEST(CString, KeepsTheNulsOfATextGivenWithItsLength) {
    const CString text(L"a\0b", 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text[2], L'b');
    EXPECT_TRUE(text + L"c" == CString(L"a\0bc", 4));
}

TEST(CString, IsEmptyForANullPointer) {
    EXPECT_TRUE(CString(static_cast<LPCTSTR>(nullptr)).IsEmpty());
    CString text = L"x";
    text = static_cast<LPCTSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, ComparesByCodeUnits) {
    EXPECT_GT(CString(L"a").Compare(L"B"), 0);
    EXPECT_TRUE(CString(L"B") < CString(L"a"));
    EXPECT_TRUE(L"x" == CString(L"x"));
    EXPECT_TRUE(CString(L"x") != L"y");
}

TEST(CString, LoadsAResourceAndIsEmptyWithoutOne) {
    CString text;
    EXPECT_TRUE(text.LoadString(100));
    EXPECT_EQ(text, L"TavrinWnd");
    EXPECT_FALSE(text.LoadString(4711));
    EXPECT_TRUE(text.IsEmpty());
}

}  // namespace
