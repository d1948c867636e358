#include <afxwin.h>
#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace {

template <class... TArguments>
CString Formatted(LPCTSTR format, TArguments... arguments) {
    CString text;
    text.Format(format, arguments...);
    return text;
}

TEST(Format, WritesExponentsWithTwoDigitsWhereTheyFit) {
    EXPECT_EQ(Formatted(L"%g", 1234567.0), L"1.23457e+06");
    EXPECT_EQ(Formatted(L"%g", 1e-7), L"1e-07");
    EXPECT_EQ(Formatted(L"%e", 12.5), L"1.250000e+01");
    EXPECT_EQ(Formatted(L"%G", 1e-7), L"1E-07");
    EXPECT_EQ(Formatted(L"%g", 1e100), L"1e+100");
    EXPECT_EQ(Formatted(L"%g", 1e-300), L"1e-300");
}

TEST(Format, WritesRealsAsTheStandardSays) {
    EXPECT_EQ(Formatted(L"%g", 900.0), L"900");
    EXPECT_EQ(Formatted(L"%g", 0.1), L"0.1");
    EXPECT_EQ(Formatted(L"%g", -0.0), L"-0");
    EXPECT_EQ(Formatted(L"%.3f", 2.0 / 3), L"0.667");
    EXPECT_EQ(Formatted(L"%08.2f|%-8.1f|%+g", 3.14159, 2.5, 1.0), L"00003.14|2.5     |+1");
    EXPECT_EQ(Formatted(L"%*.*f", 7, 1, 2.25), L"    2.2");
    EXPECT_EQ(Formatted(L"%g", std::numeric_limits<double>::infinity()), L"inf");
}

TEST(Format, UsesTheDecimalPointOfTheLocale) {
    ASSERT_NE(std::setlocale(LC_NUMERIC, "German"), nullptr);
    const CString text = Formatted(L"%g", 1.5);
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(text, L"1,5");
}

TEST(Format, WritesWholeNumbersOfEverySize) {
    EXPECT_EQ(Formatted(L"%d %i %u", -5, 7, 4294967295u), L"-5 7 4294967295");
    EXPECT_EQ(Formatted(L"%ld %lu", -5L, 4294967295ul), L"-5 4294967295");
    EXPECT_EQ(Formatted(L"%lld %I64d", -9000000000LL, 9000000000LL), L"-9000000000 9000000000");
    EXPECT_EQ(Formatted(L"%x %X %#x %o %08X", 255, 255, 255, 8, 0xBEEF), L"ff FF 0xff 10 0000BEEF");
    EXPECT_EQ(Formatted(L"%5d|%-5d|%05d|% d", 42, 42, 42, 42), L"   42|42   |00042| 42");
    EXPECT_EQ(Formatted(L"%*d|%-*d|", -4, 1, 3, 2), L"1   |2  |");
}

TEST(Format, TakesTextsAsWideUnlessTheFormatSaysNarrow) {
    EXPECT_EQ(Formatted(L"%s %ls %hs %S", L"wide", L"wide", "narrow", "narrow"), L"wide wide narrow narrow");
    EXPECT_EQ(Formatted(L"%c%c", L'x', L'\u20AC'), L"x\u20AC");
    EXPECT_EQ(Formatted(L"[%6s|%-6s|%.2s]", L"abc", L"abc", L"abc"), L"[   abc|abc   |ab]");
    EXPECT_EQ(Formatted(L"%s", static_cast<LPCTSTR>(nullptr)), L"(null)");
}

TEST(Format, WritesAPercentSignForTwo) {
    EXPECT_EQ(Formatted(L"100%%"), L"100%");
    EXPECT_EQ(Formatted(L"%d; %d; %d", 1, 2, 3), L"1; 2; 3");
    EXPECT_EQ(Formatted(L"%"), L"");
}

TEST(Format, MayFormatATextIntoItself) {
    CString text = L"a";
    text.Format(L"[%s]", text.GetString());
    EXPECT_EQ(text, L"[a]");
}

TEST(Format, TakesEveryArgumentThatAConversionNames) {
    const void* const pointer = reinterpret_cast<const void*>(static_cast<UINT_PTR>(0xBEEF));
    const CString digits(L'0', static_cast<int>(2 * sizeof(void*)) - 4);
    EXPECT_EQ(Formatted(L"%p %d", pointer, 7), digits + L"BEEF 7");
    EXPECT_EQ(Formatted(L"%a %d", 1.5, 7), L"0x1.8p+0 7");
    EXPECT_EQ(Formatted(L"%hhd %hhu %d", 0x1FF, 0x1FF, 7), L"-1 255 7");
    EXPECT_EQ(Formatted(L"%hd %hu %d", 0x1FFFF, 0x1FFFF, 7), L"-1 65535 7");
}

// In 32-bit programs these arguments are smaller than the numbers of 64 bits around them.
TEST(Format, TakesNumbersOfThePointersSize) {
    EXPECT_EQ(Formatted(L"%Iu %zu %Id %d", static_cast<size_t>(-1), size_t{5}, ptrdiff_t{-6}, 7),
              Formatted(sizeof(void*) == 8 ? L"%I64u %d %d %d" : L"%u %d %d %d", static_cast<size_t>(-1), 5,
                        -6, 7));
    EXPECT_EQ(Formatted(L"%I64d %Iu %lld %d", 1LL << 40, size_t{5}, -2LL, 7), L"1099511627776 5 -2 7");
}

TEST(Format, TakesTextsOfAnyLength) {
    const CString longText(L'x', 100000);
    EXPECT_EQ(Formatted(L"<%s>", longText.GetString()).GetLength(), 100002);
}

}  // namespace
