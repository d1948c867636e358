// The reader of compiled modules.
#include "tools/texts/StringModule.h"

#include <gtest/gtest.h>

#include "encoding/Encoding.h"
#include "tests/unit/tools/ModuleImage.h"
#include "tools/files/Files.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

std::string Texts(const std::string& bytes) {
    std::string texts;
    for (const ModuleText& text : ReadStringModule("a.dll", bytes)) {
        texts += std::to_string(text.number) + "=" + tavrin::encoding::EncodeUtf8(text.text) + " (" +
                 text.language + ")|";
    }
    return texts;
}

std::string ErrorOf(const std::string& bytes) {
    try {
        ReadStringModule("a.dll", bytes);
        return "(none)";
    } catch (const CToolError& error) {
        return error.what();
    }
}

const std::vector<CModuleImage::Block> kBlocks = {
    {1, 0x0410, {u"zero", u"", u"due"}},
    {94, 0x0410, {u"à", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"last"}},
    {94, 0x0809, {u"a"}}};

TEST(StringModule, BlocksHoldSixteenTextsAndEmptyOnesAreNone) {
    EXPECT_EQ(Texts(CModuleImage::Make(kBlocks)),
              "0=zero (language 0x0410)|2=due (language 0x0410)|1488=à (language 0x0410)|"
              "1503=last (language 0x0410)|1488=a (language 0x0809)|");
}

TEST(StringModule, BothWidthsOfModulesAreRead) {
    EXPECT_EQ(Texts(CModuleImage::Make(kBlocks, false)), Texts(CModuleImage::Make(kBlocks, true)));
}

TEST(StringModule, AModuleWithoutResourcesHasNoTexts) {
    std::string bytes = CModuleImage::Make({});
    EXPECT_EQ(Texts(bytes), "");
    bytes.replace(0x40 + 24 + 112 + 16, 4, 4, '\0');  // the address of the resources
    EXPECT_EQ(Texts(bytes), "");
}

TEST(StringModule, WhatIsNoModuleIsRefusedByName) {
    EXPECT_EQ(ErrorOf("MZ"), "a.dll: the file ends before its resources do (byte 60)");
    std::string bytes = CModuleImage::Make(kBlocks);
    bytes[0x40] = 'N';
    EXPECT_EQ(ErrorOf(bytes), "a.dll: not a module: a DLL or EXE file, or a resource script, is expected");
}

TEST(StringModule, DamagedResourcesAreRefused) {
    const std::string sound = CModuleImage::Make(kBlocks);
    std::string bytes = sound;
    bytes.resize(bytes.size() - 10);
    EXPECT_EQ(ErrorOf(bytes).substr(0, 50), "a.dll: the file ends before its resources do (byte");
    bytes = sound;
    bytes[CModuleImage::kResources + 24 + 16] = 0;  // the number of the first block
    EXPECT_EQ(ErrorOf(bytes), "a.dll: it has a block of texts with the invalid number 0");
    bytes = sound;
    bytes[CModuleImage::kResources + 16 + 7] = 0;  // the mark of a subdirectory
    EXPECT_EQ(ErrorOf(bytes), "a.dll: its resource directory does not have three levels");
}

// Each entry leads to the same block: what is read must stay within the file's size.
TEST(StringModule, EntriesThatShareATargetCannotMultiplyTheWork) {
    std::string many = CModuleImage::Make(std::vector<CModuleImage::Block>(500, {1, 0x0410, {u"b"}}));
    // All five hundred data entries name one and the same stretch, as long as the rest of the file.
    const std::size_t entries = CModuleImage::kResources + 24 + 16 + 8 * 500 + 24 * 500;
    for (std::size_t i = 1; i < 500; ++i) {
        many.replace(entries + 16 * i, 4, many, entries, 4);
        many.replace(entries + 16 * i + 4, 4, std::string("\x00\x20\x00\x00", 4));
    }
    EXPECT_EQ(ErrorOf(many), "a.dll: its resources overlap");
}

TEST(StringModule, NoDamageDoesMoreThanFail) {
    const std::string sound = CModuleImage::Make(kBlocks);
    unsigned state = 1;
    for (int i = 0; i < 20000; ++i) {
        std::string bytes = sound;
        for (int flips = 0; flips < 3; ++flips) {
            state = state * 1664525 + 1013904223;
            bytes[(state >> 8) % bytes.size()] = static_cast<char>(state >> 4 & 0xFF);
        }
        bytes.resize(state % 4 == 0 ? (state >> 8) % bytes.size() : bytes.size());
        try {
            ReadStringModule("a.dll", bytes);
        } catch (const CToolError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, 7), "a.dll: ");
        }
    }
}

}  // namespace
