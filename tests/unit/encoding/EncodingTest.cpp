// UTF-8 and code page 1252.
#include "encoding/Encoding.h"

#include <gtest/gtest.h>

using namespace tavrin::encoding;

namespace {

const std::string kIllFormed[] = {"\x80",         "\xC3",
                                  "\xC0\xAF",     "\xE0\x80\x80",
                                  "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                  "\xC3(",        "\xF8\x88\x80\x80\x80",
                                  "\xE2\x82",     "\xF0\x9F\x9A"};

TEST(Encoding, WellFormedUtf8IsDecodedIntoUnitsOfUtf16) {
    EXPECT_EQ(DecodeUtf8("a\xC3\xB2\xE9\x96\x80"), L"aò門");
    EXPECT_EQ(DecodeUtf8("\xF0\x9F\x9A\xAA"), (std::wstring{wchar_t{0xD83D}, wchar_t{0xDEAA}}));
    EXPECT_EQ(DecodeUtf8(""), L"");
    EXPECT_EQ(DecodeUtf8(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(Encoding, IllFormedUtf8IsNotDecoded) {
    for (const std::string& bytes : kIllFormed) {
        EXPECT_EQ(DecodeUtf8("a" + bytes), std::nullopt) << testing::PrintToString(bytes);
    }
}

TEST(Encoding, Utf8IsEncodedFromUnitsAndFromWholeCodePoints) {
    EXPECT_EQ(EncodeUtf8(L"aò門"), "a\xC3\xB2\xE9\x96\x80");
    EXPECT_EQ(EncodeUtf8(std::wstring{wchar_t{0xD83D}, wchar_t{0xDEAA}}), "\xF0\x9F\x9A\xAA");
    EXPECT_EQ(EncodeUtf8(L"\U0001F6AA"), "\xF0\x9F\x9A\xAA");
}

TEST(Encoding, AnUnpairedSurrogateBecomesTheReplacementCharacter) {
    const std::wstring lead(1, wchar_t{0xD83D});
    const std::wstring trail(1, wchar_t{0xDEAA});
    EXPECT_EQ(EncodeUtf8(lead + L"a"),
              "\xEF\xBF\xBD"
              "a");
    EXPECT_EQ(EncodeUtf8(trail + lead), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Encoding, EachByteOfCodePage1252HasItsCharacter) {
    for (int i = 0; i < 256; ++i) {
        const auto byte = static_cast<char>(i);
        const std::wstring text = DecodeWindows1252({&byte, 1});
        ASSERT_EQ(text.size(), 1u);
        EXPECT_EQ(EncodeWindows1252(char32_t(text[0])), byte);
    }
    EXPECT_EQ(DecodeWindows1252("\x80\x9F\xE0"), L"€Ÿà");
    EXPECT_EQ(EncodeWindows1252(0x416), std::nullopt);
    EXPECT_EQ(EncodeWindows1252(0x80), std::nullopt);
}

TEST(Encoding, WhatIsNotUtf8IsInCodePage1252) {
    EXPECT_EQ(DecodeUtf8OrWindows1252("\xC3\xB2"), L"ò");
    for (const std::string& bytes : kIllFormed) {
        EXPECT_EQ(DecodeUtf8OrWindows1252(bytes), DecodeWindows1252(bytes));
    }
}

}  // namespace
