// The texts of modules and scripts: what the reader reads is what the resource compiler wrote and what the
// system loads.
#include "tools/texts/TextTable.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "tools/files/Files.h"

using namespace tavrin::tools;

namespace {

std::filesystem::path TestsFolder() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return std::filesystem::path(program).parent_path();
}

std::wstring Loaded(HMODULE module, unsigned number) {
    wchar_t text[256] = {};
    const int length = LoadStringW(module, number, text, 256);
    return std::wstring(text, static_cast<std::size_t>(length));
}

// The texts of all languages in the order of their numbers: "1501=Width".
std::vector<std::wstring> AllTexts(const CTextTable& table) {
    std::vector<std::wstring> texts;
    for (unsigned number = 0; number < 0x10000; ++number) {
        for (std::size_t language = 0; language < table.Languages().size(); ++language) {
            const TextEntry* const text = table.Find(number, language);
            if (text != nullptr && !text->text.empty()) {
                texts.push_back(std::to_wstring(number) + L"=" + text->text);
            }
        }
    }
    return texts;
}

CTextTable TableOf(const std::filesystem::path& path) {
    CTextTable table;
    table.ReadFile(NameOf(path));
    return table;
}

void ExpectEqualTexts(const std::filesystem::path& module, const std::filesystem::path& script) {
    const std::vector<std::wstring> expected = AllTexts(TableOf(script));
    EXPECT_EQ(AllTexts(TableOf(module)), expected);
    EXPECT_GT(expected.size(), 10U);
}

TEST(TextTable, ReadsAModuleAsTheCompilerMadeItOfItsScript) {
    ExpectEqualTexts(TestsFolder() / "OddTexts.dll", SOURCE_FOLDER "/tests/windows/tools/OddTexts.rc");
    ExpectEqualTexts(TestsFolder() / "../bin/TavrinRes.dll", SOURCE_FOLDER "/samples/texts/TavrinRes.it.rc");
    ExpectEqualTexts(TestsFolder() / "../bin/en/TavrinRes.dll",
                     SOURCE_FOLDER "/samples/texts/TavrinRes.en.rc");
}

TEST(TextTable, LoadsWhatTheSystemLoads) {
    const std::filesystem::path path = TestsFolder() / "../bin/TavrinRes.dll";
    const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(module, nullptr);
    const CTextTable table = TableOf(path);
    for (unsigned number = 1; number < 0x10000; ++number) {
        ASSERT_EQ(table.Load(number), Loaded(module, number)) << number;
    }
    FreeLibrary(module);
}

TEST(TextTable, AModuleNamesItsLanguagesByNumber) {
    EXPECT_EQ(TableOf(TestsFolder() / "OddTexts.dll").Languages(),
              (std::vector<std::string>{"language 0x0410", "language 0x0809"}));
    EXPECT_EQ(TableOf(SOURCE_FOLDER "/tests/windows/tools/OddTexts.rc").Languages(),
              (std::vector<std::string>{"LANG_ITALIAN, SUBLANG_ITALIAN", "language 0x0809"}));
}

TEST(TextTable, AModuleWithoutTextsIsRefusedByName) {
    const std::filesystem::path module = TestsFolder() / "TD_Alloc.dll";
    try {
        TableOf(module);
        FAIL() << "nothing was thrown";
    } catch (const CToolError& error) {
        EXPECT_EQ(error.what(),
                  NameOf(module) + ": it contains no texts: give a string table script or a DLL");
    }
}

}  // namespace
