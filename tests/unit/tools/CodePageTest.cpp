#include "tools/texts/CodePage.h"

#include <gtest/gtest.h>

namespace {

using namespace tavrin::tools;

TEST(CodePage, DecodesCodePage1252) {
    EXPECT_EQ(DecodeText("\x80 m\xB2", kWesternEuropean), L"\u20AC m\u00B2");
}

TEST(CodePage, RefusesBytesWithoutAMeaningInCodePage1252) {
    for (const char* bytes : {"\x81", "\x8D", "\x8F", "\x90", "a\x9D"}) {
        EXPECT_EQ(DecodeText(bytes, kWesternEuropean), std::nullopt) << bytes;
    }
}

TEST(CodePage, DecodesAsciiOfAnyOtherCodePageAlone) {
    EXPECT_EQ(DecodeText("door", 437), L"door");
    EXPECT_EQ(DecodeText("t\x81r", 437), std::nullopt);
}

TEST(CodePage, EncodesWhatTheCodePageHas) {
    EXPECT_EQ(EncodeCharacter(U'a', 437), "a");
    EXPECT_EQ(EncodeCharacter(U'\u00E4', 437), std::nullopt);
    EXPECT_EQ(EncodeCharacter(U'\u20AC', kWesternEuropean), "\x80");
    EXPECT_EQ(EncodeCharacter(U'\u0081', kWesternEuropean), std::nullopt);
    EXPECT_EQ(EncodeCharacter(U'\u0416', kWesternEuropean), std::nullopt);
    EXPECT_EQ(EncodeCharacter(U'\u20AC', kUtf8), "\xE2\x82\xAC");
    EXPECT_EQ(EncodeCharacter(U'\U0001F6AA', kUtf8), "\xF0\x9F\x9A\xAA");
}

TEST(CodePage, RefusesHalfASurrogatePair) {
    for (const char32_t half : {char32_t(0xD800), char32_t(0xDBFF), char32_t(0xDC00), char32_t(0xDFFF)}) {
        EXPECT_EQ(EncodeCharacter(half, kUtf8), std::nullopt);
    }
}

}  // namespace
