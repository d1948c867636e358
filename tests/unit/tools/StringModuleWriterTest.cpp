// The writer of resource modules: what the reader reads back, and what other programs read.
#include "tools/texts/StringModuleWriter.h"

#include <cstdlib>

#include "encoding/Encoding.h"
#include "tests/unit/tools/ToolFolder.h"
#include "tools/texts/StringModule.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

constexpr unsigned kItalian = 0x0410;
constexpr unsigned kEnglish = 0x0809;

const std::vector<CompiledText> kTexts = {
    {65535, kItalian, L"last"},
    {1501, kItalian, L"Larghezza \x00E0"},
    {1501, kEnglish, L"Width"},
    {0, kItalian, L"zero"},
    {1487, kItalian, L"before the block"},
    {1488, kItalian, L"\x20AC and \xD83D\xDE00"},
};

std::string TextsOf(const std::string& bytes) {
    std::string texts;
    for (const ModuleText& text : ReadStringModule("a.dll", bytes)) {
        texts += std::to_string(text.number) + " " + std::to_string(text.languageId) + " " +
                 tavrin::encoding::EncodeUtf8(text.text) + "|";
    }
    return texts;
}

unsigned Word(const std::string& bytes, std::size_t at) {
    const unsigned low = static_cast<unsigned char>(bytes[at]);
    const unsigned high = static_cast<unsigned char>(bytes[at + 1]);
    return low | high << 8;
}

TEST(StringModuleWriter, WhatIsWrittenIsReadBackInTheOrderOfNumbers) {
    constexpr const char* kExpected =
        "0 1040 zero|1487 1040 before the block|1488 1040 \xE2\x82\xAC and \xF0\x9F\x98\x80|"
        "1501 1040 Larghezza \xC3\xA0|1501 2057 Width|65535 1040 last|";
    EXPECT_EQ(TextsOf(StringModule(kTexts, MC_X64)), kExpected);
    EXPECT_EQ(TextsOf(StringModule(kTexts, MC_X86)), kExpected);
}

TEST(StringModuleWriter, TheOrderOfTheTextsDoesNotChangeTheBytes) {
    const std::vector<CompiledText> reversed(kTexts.rbegin(), kTexts.rend());
    EXPECT_EQ(StringModule(kTexts, MC_X64), StringModule(reversed, MC_X64));
}

TEST(StringModuleWriter, AnEmptyTextIsNone) {
    EXPECT_EQ(StringModule({{5, kEnglish, L"a"}, {900, kEnglish, L""}}, MC_X64),
              StringModule({{5, kEnglish, L"a"}}, MC_X64));
}

TEST(StringModuleWriter, TheHeadersNameTheMachineAndWholeSections) {
    for (const EMachine machine : {MC_X64, MC_X86}) {
        const std::string bytes = StringModule(kTexts, machine);
        EXPECT_EQ(Word(bytes, 0x44), machine == MC_X64 ? 0x8664U : 0x14CU);
        EXPECT_EQ(Word(bytes, 0x58), machine == MC_X64 ? 0x20BU : 0x10BU);
        EXPECT_EQ(bytes.size() % 0x200, 0U);
        const std::size_t imageSize = Word(bytes, 0x58 + 56) | Word(bytes, 0x58 + 58) << 16;
        EXPECT_EQ(imageSize % 0x1000, 0U);
        EXPECT_GE(imageSize, 0x1000 + bytes.size() - 0x200);
    }
}

TEST(StringModuleWriter, TheLongestTextFits) {
    const std::wstring longest(kLongestCompiledText, L'x');
    const std::vector<ModuleText> texts =
        ReadStringModule("a.dll", StringModule({{7, kEnglish, longest}}, MC_X64));
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts.front().text, longest);
}

// The resource compiler makes a script of a module: of ours, and of its own from the same texts.
std::string Decompiled(const CToolFolder& folder, const std::string& file, EMachine machine) {
    const std::string tools = machine == MC_X64 ? "x86_64-w64-mingw32-" : "i686-w64-mingw32-";
    EXPECT_EQ(std::system((tools + "windres -J coff -O rc " + file + " " + folder.Path("out.rc")).c_str()),
              0);
    return folder.Read("out.rc");
}

TEST(StringModuleWriter, TheResourceCompilerReadsWhatItWouldHaveWritten) {
    const CToolFolder folder;
    const std::string script =
        folder.Write("a.rc",
                     "#pragma code_page(65001)\nLANGUAGE 0x10, 0x01\nSTRINGTABLE { 0 \"zero\" "
                     "1487 \"before the block\" 1488 L\"\\x20AC and \\xD83D\\xDE00\" "
                     "1501 \"Larghezza \xC3\xA0\" 65535 \"last\" }\n"
                     "LANGUAGE 0x09, 0x02\nSTRINGTABLE { 1501 \"Width\" }\n");
    for (const EMachine machine : {MC_X64, MC_X86}) {
        const std::string tools = machine == MC_X64 ? "x86_64-w64-mingw32-" : "i686-w64-mingw32-";
        ASSERT_EQ(std::system((tools + "windres " + script + " " + folder.Path("a.o")).c_str()), 0);
        const std::string module = folder.Write("a.dll", StringModule(kTexts, machine));
        EXPECT_EQ(Decompiled(folder, module, machine), Decompiled(folder, folder.Path("a.o"), machine));
    }
}

}  // namespace
