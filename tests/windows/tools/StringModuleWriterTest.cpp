// The modules that tavrincheck texts writes: the system loads them as libraries and finds their texts.
#include "tools/texts/StringModuleWriter.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "tests/windows/support/TempFolder.h"
#include "tools/files/Files.h"
#include "tools/tavrincheck/TextsCommand.h"
#include "tools/texts/TextTable.h"

using namespace tavrin::tools;

namespace {

class StringModuleWriter : public testing::Test {
protected:
    ~StringModuleWriter() override {
        if (m_module != nullptr) {
            FreeLibrary(m_module);
        }
    }

    // Makes a module of the script and loads it as the system loads any library.
    void Load(const std::string& script) {
        const std::filesystem::path path = std::filesystem::path(m_folder.Path(L"Made.dll"));
        m_table.ReadFile(script);
        WriteBytes(NameOf(path), ModuleOf(m_table, OwnMachine()));
        m_module = LoadLibraryW(path.c_str());
        ASSERT_NE(m_module, nullptr) << GetLastError();
    }

    std::wstring Text(unsigned number) const {
        wchar_t text[256] = {};
        const int length = LoadStringW(m_module, number, text, 256);
        return std::wstring(text, static_cast<std::size_t>(length));
    }

    std::wstring Text(unsigned number, WORD language) const {
        const HRSRC block = FindResourceExW(m_module, RT_STRING, MAKEINTRESOURCEW(number / 16 + 1), language);
        if (block == nullptr) {
            return {};
        }
        const auto* text = static_cast<const wchar_t*>(LockResource(LoadResource(m_module, block)));
        for (unsigned i = 0; i < number % 16; ++i) {
            text += 1 + *text;
        }
        return std::wstring(text + 1, *text);
    }

    CTextTable m_table;

private:
    CTempFolder m_folder;
    HMODULE m_module = nullptr;
};

TEST_F(StringModuleWriter, TheSystemLoadsTheTextsOfTheSamples) {
    Load(SOURCE_FOLDER "/samples/texts/TavrinRes.it.rc");
    for (unsigned number = 1; number < 0x10000; ++number) {
        ASSERT_EQ(Text(number), m_table.Load(number)) << number;
    }
}

TEST_F(StringModuleWriter, TheSystemFindsTheTextsOfEachLanguage) {
    Load(SOURCE_FOLDER "/tests/windows/tools/OddTexts.rc");
    for (const TextEntry& text : m_table.Texts()) {
        EXPECT_EQ(Text(text.number, static_cast<WORD>(*m_table.LanguageIdOf(text.language))), text.text)
            << text.number;
    }
}

}  // namespace
