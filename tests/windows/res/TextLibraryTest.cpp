#include "res/TextLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

using namespace tavrin::res;

namespace {

class TextLibrary : public testing::Test {
protected:
    void SetUp() override {
        OfferTextModule();
        // Whatever an earlier test left there.
        AfxSetResourceHandle(GetModuleHandleW(nullptr));
    }
    void TearDown() override { TakeTextModuleAway(); }
    CTextLibrary m_texts;
};

TEST_F(TextLibrary, GivesNoTextWhileTheResourceModuleIsMissingAndTriesAgain) {
    TakeTextModuleAway();
    EXPECT_EQ(m_texts.Load(2001), CString());
    OfferTextModule();
    EXPECT_EQ(m_texts.Load(2001), CString(L"Porta a battente"));
}

TEST_F(TextLibrary, TakesAFileThatIsNoModuleAsMissing) {
    TakeTextModuleAway();
    const CTempFolder folder;
    folder.Write(L"TavrinRes.dll", "no module");
    SetDllDirectoryW(folder.Path(L"").c_str());
    EXPECT_EQ(m_texts.Load(2001), CString());
    OfferTextModule();
    EXPECT_EQ(m_texts.Load(2001), CString(L"Porta a battente"));
}

TEST_F(TextLibrary, KeepsAModuleWithoutTextsAndGivesEmptyOnes) {
    TakeTextModuleAway();
    const CTempFolder folder;
    wchar_t other[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"TD_Alloc.dll"), other, MAX_PATH);
    std::filesystem::copy_file(other, folder.Path(L"TavrinRes.dll"));
    SetDllDirectoryW(folder.Path(L"").c_str());
    EXPECT_EQ(m_texts.Load(2001), CString());
    OfferTextModule();
    EXPECT_EQ(m_texts.Load(2001), CString());
    TakeTextModuleAway();
}

TEST_F(TextLibrary, CutsATextTo255Characters) {
    TakeTextModuleAway();
    const CTempFolder folder;
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path longTexts = std::filesystem::path(program).parent_path() / L"LongTexts.dll";
    std::filesystem::copy_file(longTexts, folder.Path(L"TavrinRes.dll"));
    SetDllDirectoryW(folder.Path(L"").c_str());
    const CString longest = m_texts.Load(255);
    EXPECT_EQ(longest.GetLength(), 255);
    EXPECT_STREQ(longest.GetString() + 249, L"9abcde");
    EXPECT_EQ(m_texts.Load(300), longest);
    TakeTextModuleAway();
}

TEST_F(TextLibrary, GivesAnEmptyTextForANumberThatIsNotThere) {
    EXPECT_EQ(m_texts.Load(60000), CString());
}

TEST_F(TextLibrary, DoesNotMistakeALargeNumberForAnother) {
    EXPECT_EQ(m_texts.Load(2001), CString(L"Porta a battente"));
    EXPECT_EQ(m_texts.Load(0x10000 + 2001), CString());
    EXPECT_EQ(m_texts.Load(0x7FFFFFFF), CString());
}

TEST_F(TextLibrary, KeepsCharactersOutsideAscii) {
    EXPECT_EQ(m_texts.Load(1504), CString(L"Profondit\u00E0 telaio"));
}

TEST_F(TextLibrary, RestoresTheModulesOwnResources) {
    EXPECT_EQ(m_texts.Load(2001), CString(L"Porta a battente"));
    EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(nullptr));
}

}  // namespace
