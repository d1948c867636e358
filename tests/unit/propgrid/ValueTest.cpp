// When two values are the same, and when an item counts as modified.
#include "propgrid/model/Value.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

#include "propgrid/model/GridItem.h"
#include "tests/unit/propgrid/TestCustomItem.h"

namespace {

using namespace tavrin::propgrid;
using tests::CTestCustomItem;

FontPointer Font(std::u16string_view face, std::int32_t height) {
    FontValue font;
    font.height = height;
    std::copy(face.begin(), face.end(), font.faceName);
    return std::make_shared<const FontValue>(font);
}

// Gives the item another value and says whether it then counts as modified.
bool ModifiedBy(EItemType kind, Value first, Value second) {
    const auto item = std::make_unique<GridItem>();
    item->kind = kind;
    item->value = std::move(first);
    item->TakeSavedCopy();
    EXPECT_FALSE(item->IsModified());
    item->value = std::move(second);
    return item->IsModified();
}

TEST(ModifiedItem, ComparesTheValueOfEveryKindWithTheSavedCopy) {
    EXPECT_TRUE(ModifiedBy(IT_STRING, std::wstring(L"a"), std::wstring(L"A")));
    EXPECT_TRUE(ModifiedBy(IT_TEXT, std::wstring(L"a"), std::wstring(L"a ")));
    EXPECT_TRUE(ModifiedBy(IT_FILE, std::wstring(L"a"), std::wstring(L"b")));
    EXPECT_TRUE(ModifiedBy(IT_FOLDER, std::wstring(L"a"), std::wstring(L"b")));
    EXPECT_TRUE(ModifiedBy(IT_INTEGER, 1, 2));
    EXPECT_TRUE(ModifiedBy(IT_COMBO, 0, -1));
    EXPECT_TRUE(ModifiedBy(IT_DOUBLE, 0.3, 0.1 + 0.2));
    EXPECT_TRUE(ModifiedBy(IT_BOOLEAN, false, true));
    EXPECT_TRUE(ModifiedBy(IT_COLOR, Color{0}, Color{1}));
    EXPECT_FALSE(ModifiedBy(IT_STRING, std::wstring(L"a"), std::wstring(L"a")));
    EXPECT_FALSE(ModifiedBy(IT_DOUBLE, 0.25, 0.25));
    EXPECT_FALSE(ModifiedBy(IT_DOUBLE, 0.0, -0.0));
}

TEST(ModifiedItem, ComparesDatesWithTheirStatus) {
    EXPECT_TRUE(ModifiedBy(IT_DATE, DateValue{1.5}, DateValue{1.25}));
    EXPECT_TRUE(ModifiedBy(IT_DATE, DateValue{1.5}, DateValue{1.5, DS_NULL}));
    EXPECT_TRUE(ModifiedBy(IT_DATETIME, DateValue{0, DS_INVALID}, DateValue{0, DS_NULL}));
    EXPECT_FALSE(ModifiedBy(IT_DATETIME, DateValue{0, DS_NULL}, DateValue{0, DS_NULL}));
}

TEST(ModifiedItem, ComparesAllBytesOfAFont) {
    EXPECT_FALSE(ModifiedBy(IT_FONT, Font(u"Tahoma", -16), Font(u"Tahoma", -16)));
    EXPECT_TRUE(ModifiedBy(IT_FONT, Font(u"Tahoma", -16), Font(u"Tahoma", -17)));
    // Also those after the end of the face name, which are not visible.
    FontValue font = *Font(u"Tahoma", -16);
    font.faceName[FontValue::kFaceSize - 1] = u'x';
    EXPECT_TRUE(ModifiedBy(IT_FONT, Font(u"Tahoma", -16), std::make_shared<const FontValue>(font)));
}

TEST(ModifiedItem, EndsWhenTheSavedCopyIsTakenAgain) {
    const auto item = std::make_unique<GridItem>();
    item->kind = IT_INTEGER;
    item->value = 1;
    item->TakeSavedCopy();
    item->value = 2;
    item->undefined = true;
    item->TakeSavedCopy();
    EXPECT_FALSE(item->IsModified());
    EXPECT_TRUE(item->savedUndefined);
}

TEST(ModifiedItem, IsNoneOfACustomItemsBusiness) {
    CTestCustomItem first;
    CTestCustomItem second;
    EXPECT_FALSE(
        ModifiedBy(IT_CUSTOM, static_cast<ICustomItem*>(&first), static_cast<ICustomItem*>(&second)));
    EXPECT_EQ(first.accepted, 1);
    EXPECT_EQ(second.accepted, 0);
}

TEST(EditMode, FollowsFromTheKind) {
    const auto modeOf = [](EItemType kind) {
        const auto item = std::make_unique<GridItem>();
        item->kind = kind;
        return item->GetEditMode();
    };
    for (const EItemType kind : {IT_STRING, IT_INTEGER, IT_DOUBLE}) {
        EXPECT_EQ(modeOf(kind), EM_INPLACE) << kind;
    }
    for (const EItemType kind : {IT_COMBO, IT_BOOLEAN, IT_DATE}) {
        EXPECT_EQ(modeOf(kind), EM_DROPDOWN) << kind;
    }
    for (const EItemType kind : {IT_TEXT, IT_DATETIME, IT_FILE, IT_FOLDER, IT_COLOR, IT_FONT}) {
        EXPECT_EQ(modeOf(kind), EM_MODAL) << kind;
    }
}

TEST(EditMode, IsAskedOfACustomItem) {
    CTestCustomItem custom;
    const auto item = std::make_unique<GridItem>();
    item->kind = IT_CUSTOM;
    item->value = static_cast<ICustomItem*>(&custom);
    for (const int mode : {EM_CUSTOM, EM_INPLACE, EM_DROPDOWN, EM_MODAL, EM_INPLACE_BUTTON}) {
        custom.mode = mode;
        EXPECT_EQ(item->GetEditMode(), mode);
    }
}

TEST(Codes, AreThoseThatClientsStore) {
    const EItemType kinds[] = {IT_CUSTOM, IT_STRING,   IT_TEXT, IT_INTEGER, IT_DOUBLE, IT_COMBO, IT_BOOLEAN,
                               IT_DATE,   IT_DATETIME, IT_FILE, IT_FOLDER,  IT_COLOR,  IT_FONT};
    for (int code = 0; code < 13; ++code) {
        EXPECT_EQ(kinds[code], code);
    }
    const EEditMode modes[] = {EM_CUSTOM, EM_INPLACE, EM_DROPDOWN, EM_MODAL, EM_INPLACE_BUTTON};
    for (int code = 0; code < 5; ++code) {
        EXPECT_EQ(modes[code], code);
    }
}

TEST(FontFace, EndsWithItsFieldOrBefore) {
    EXPECT_EQ(Font(u"Tahoma", 1)->GetFaceName(), L"Tahoma");
    EXPECT_EQ(Font(u"", 1)->GetFaceName(), L"");
    const std::u16string full(FontValue::kFaceSize, u'F');
    EXPECT_EQ(Font(full, 1)->GetFaceName(), std::wstring(FontValue::kFaceSize, L'F'));
}

}  // namespace
