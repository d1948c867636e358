// Text files under locales other than "C".
#include <gtest/gtest.h>

#include <clocale>

#include "itemdlg/TextFile.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::itemdlg;

namespace {

// Every byte, followed by each of a few that some code pages would take as the second half of a character.
std::string MakeEveryPair() {
    std::string bytes;
    for (int first = 1; first < 256; ++first) {
        for (const int second : {0x20, 0x40, 0x5C, 0x7E, 0x80, 0x81, 0x9F, 0xA1, 0xC3, 0xE9, 0xFC, 0xFF}) {
            if (first != '\n' && first != '\r') {
                (bytes += static_cast<char>(first)) += static_cast<char>(second);
            }
        }
    }
    return bytes;
}

class TextLocale : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) {
            GTEST_SKIP() << "no locale " << GetParam();
        }
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

TEST_P(TextLocale, EveryByteSurvivesBeingReadAndWritten) {
    const CTempFolder folder;
    const std::string bytes = MakeEveryPair() + "\r\n\xE2\x82\xAC\xF0\x9F\x92\x80\xED\xA0\xBD\xE2\x82\r\n";
    folder.Write(L"in.txt", bytes);
    std::vector<std::wstring> lines;
    ASSERT_TRUE(ReadTextFile(folder.Path(L"in.txt"), lines));
    ASSERT_TRUE(WriteTextFile(folder.Path(L"out.txt"), lines));
    EXPECT_EQ(folder.Read(L"out.txt"), bytes);
}

INSTANTIATE_TEST_SUITE_P(CodePages, TextLocale,
                         testing::Values("C", "English_United States.1252", "Japanese_Japan.932",
                                         "Chinese_Taiwan.950", "Russian_Russia.1251",
                                         "English_United States.65001"));

TEST(TextLocaleOfWesternEurope, ReadsAByteAsTheCharacterOfItsCodePage) {
    if (std::setlocale(LC_ALL, "English_United States.1252") == nullptr) {
        GTEST_SKIP();
    }
    const CTempFolder folder;
    folder.Write(L"in.txt", "\x80\xE9");
    std::vector<std::wstring> lines;
    EXPECT_TRUE(ReadTextFile(folder.Path(L"in.txt"), lines));
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(lines, std::vector<std::wstring>{L"\u20AC\u00E9"});
}

}  // namespace
