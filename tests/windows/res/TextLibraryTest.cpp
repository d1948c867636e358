#include "TextLibrary.h"

#include <gtest/gtest.h>

#include "TextModule.h"

namespace {

class TextLibrary : public testing::Test {
protected:
    void SetUp() override { OfferTextModule(); }
    void TearDown() override { TakeTextModuleAway(); }
    CTextLibrary m_texts;
};

TEST_F(TextLibrary, GivesNoTextWhileTheResourceModuleIsMissingAndTriesAgain) {
    TakeTextModuleAway();
    EXPECT_EQ(m_texts.Load(2001), CString());
    OfferTextModule();
    EXPECT_EQ(m_texts.Load(2001), CString(L"Porta a battente"));
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
    const HINSTANCE before = AfxGetResourceHandle();
    m_texts.Load(2001);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

}  // namespace
