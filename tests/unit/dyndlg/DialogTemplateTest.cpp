// The bytes of a dialog template, one by one.
#include "dyndlg/DialogTemplate.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

using namespace tavrin::dyndlg;

namespace {

using Bytes = std::vector<unsigned>;

constexpr unsigned guard = 0xEE;

// The template's bytes, written over rubbish so that what is left out shows; nothing behind them is touched.
Bytes BytesOf(const DialogTemplate& dialog) {
    const std::size_t size = TemplateSize(dialog);
    std::vector<std::byte> memory(size + 8, std::byte{guard});
    WriteTemplate(dialog, memory);
    for (std::size_t index = size; index < memory.size(); ++index) {
        EXPECT_EQ(memory[index], std::byte{guard}) << "behind the template";
    }
    Bytes bytes;
    for (std::size_t index = 0; index < size; ++index) {
        bytes.push_back(std::to_integer<unsigned>(memory[index]));
    }
    return bytes;
}

// Part of a template.
Bytes Slice(const Bytes& bytes, std::ptrdiff_t first, std::ptrdiff_t end) {
    return {bytes.begin() + first, bytes.begin() + end};
}

DialogTemplate PlainDialog() {
    DialogTemplate dialog;
    dialog.style = 0x10C80040;
    dialog.exStyle = 1;
    return dialog;
}

TEST(DialogTemplate, WithoutItemsIsHeaderMenuClassAndTexts) {
    DialogTemplate dialog = PlainDialog();
    dialog.extent = {-2, 0x0102, 205, 105};
    dialog.caption = L"Hi";
    dialog.pointSize = 0x0908;
    dialog.faceName = L"Abc";
    const Bytes expected = {
        0x40, 0x00, 0xC8, 0x10,                // style
        1,    0,    0,    0,                   // extended style
        0,    0,                               // number of items
        0xFE, 0xFF, 0x02, 0x01,                // x, y
        205,  0,    105,  0,                   // cx, cy
        0,    0,    0,    0,                   // menu, class
        'H',  0,    'i',  0,    0,   0,        // caption
        0x08, 0x09,                            // point size
        'A',  0,    'b',  0,    'c', 0, 0, 0,  // face
    };
    EXPECT_EQ(BytesOf(dialog), expected);
}

TEST(DialogTemplate, WithoutItemsIsNotRoundedUp) {
    DialogTemplate dialog;
    EXPECT_EQ(TemplateSize(dialog), 28U);
    dialog.caption = L"a";
    EXPECT_EQ(TemplateSize(dialog), 30U);
    dialog.faceName = L"MS Sans Serif";
    EXPECT_EQ(TemplateSize(dialog), 56U);
}

TEST(DialogTemplate, TakesAPointSizeAsItStands) {
    DialogTemplate dialog;
    dialog.pointSize = static_cast<std::uint16_t>(-13);
    const Bytes bytes = BytesOf(dialog);
    ASSERT_EQ(bytes.size(), 28U);
    EXPECT_EQ(bytes[24], 0xF3U);
    EXPECT_EQ(bytes[25], 0xFFU);
}

TEST(DialogTemplate, WritesAnItemWithItsClassAsOrdinal) {
    DialogTemplate dialog = PlainDialog();
    dialog.items.push_back({.style = 0x50010000,
                            .exStyle = 0x00000200,
                            .rect = {7, 8, 107, 22},
                            .id = 1025,
                            .typeCode = 128,
                            .caption = L"OK"});
    const Bytes expected = {
        0x40, 0x00, 0xC8, 0x10, 1,   0, 0,  0,        // the dialog's styles
        1,    0,                                      // number of items
        0,    0,    0,    0,    0,   0, 0,  0,        // x, y, cx, cy
        0,    0,    0,    0,    0,   0, 0,  0, 0, 0,  // menu, class, no texts, point size
        0x00, 0x00, 0x01, 0x50,                       // style
        0x00, 0x02, 0x00, 0x00,                       // extended style
        7,    0,    8,    0,    100, 0, 14, 0,        // x, y, cx, cy
        0x01, 0x04,                                   // id
        0xFF, 0xFF, 0x80, 0x00,                       // class
        'O',  0,    'K',  0,    0,   0,               // caption
        0,    0,                                      // no creation data
    };
    EXPECT_EQ(BytesOf(dialog), expected);
}

TEST(DialogTemplate, StartsEachItemAtAFourByteBoundary) {
    DialogTemplate dialog;
    dialog.caption = L"a";  // the head takes 30 bytes
    dialog.items.push_back({.style = 0x11111111, .caption = L""});
    dialog.items.push_back({.style = 0x22222222, .caption = L"b"});
    dialog.items.push_back({.style = 0x33333333, .caption = L"cd"});
    const Bytes bytes = BytesOf(dialog);
    // Heads and items one after another: 30 -> 32, + 26 = 58 -> 60, + 28 = 88, + 30 = 118 unrounded.
    ASSERT_EQ(bytes.size(), 118U);
    EXPECT_EQ(Slice(bytes, 30, 36), (Bytes{0, 0, 0x11, 0x11, 0x11, 0x11}));
    EXPECT_EQ(Slice(bytes, 58, 64), (Bytes{0, 0, 0x22, 0x22, 0x22, 0x22}));
    EXPECT_EQ(Slice(bytes, 86, 92), (Bytes{0, 0, 0x33, 0x33, 0x33, 0x33}));
}

TEST(DialogTemplate, TakesTwentySixBytesAndTwoPerCharacterForAnItem) {
    for (std::size_t length = 0; length < 9; ++length) {
        const std::wstring caption(length, L'x');
        DialogTemplate dialog;
        dialog.items.push_back({.caption = caption});
        EXPECT_EQ(TemplateSize(dialog), 28 + 26 + 2 * length);
        dialog.items.push_back({.caption = caption});
        EXPECT_EQ(TemplateSize(dialog), 28 + (26 + 2 * length + 3) / 4 * 4 + 26 + 2 * length);
    }
}

TEST(DialogTemplate, CutsAnItemsRectangleAndIdToSixteenBits) {
    DialogTemplate dialog;
    dialog.items.push_back(
        {.rect = {-1, 0x12345, 0x7FFFFFFF, -0x7FFFFFFF - 1}, .id = 0xABCD1234, .typeCode = 0x00050081});
    const Bytes bytes = BytesOf(dialog);
    ASSERT_EQ(bytes.size(), 54U);
    EXPECT_EQ(Slice(bytes, 36, 50), (Bytes{0xFF, 0xFF,                 // left
                                           0x45, 0x23,                 // top
                                           0x00, 0x00,                 // 0x80000000
                                           0xBB, 0xDC,                 // 0x7FFEDCBB
                                           0x34, 0x12,                 // id
                                           0xFF, 0xFF, 0x81, 0x00}));  // class
}

TEST(DialogTemplate, EndsATextAtItsFirstZero) {
    using namespace std::literals;
    DialogTemplate dialog;
    dialog.caption = L"a\0b"sv;
    dialog.faceName = L"\0c"sv;
    dialog.items.push_back({.caption = L"\0\0\0"sv});
    EXPECT_EQ(TemplateSize(dialog), 32U + 26);
    const Bytes bytes = BytesOf(dialog);
    EXPECT_EQ(Slice(bytes, 22, 32), (Bytes{'a', 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(DialogTemplate, WritesTextsAsUtf16) {
    DialogTemplate dialog;
    dialog.caption = L"\u00E0\uFFFD";
    dialog.faceName = L"\U0001F600\U0010FFFF";
    const Bytes bytes = BytesOf(dialog);
    EXPECT_EQ(Slice(bytes, 22, 40), (Bytes{0xE0, 0x00, 0xFD, 0xFF, 0, 0, 0, 0,  // caption, size
                                           0x3D, 0xD8, 0x00, 0xDE, 0xFF, 0xDB, 0xFF, 0xDF, 0, 0}));
}

TEST(DialogTemplate, HoldsMoreItemsThanItsCountCanSay) {
    DialogTemplate dialog;
    dialog.items.resize(0x10002);
    const Bytes bytes = BytesOf(dialog);
    EXPECT_EQ(bytes.size(), 28U + 0x10002 * 28 - 2);
    EXPECT_EQ(bytes[8], 2U);
    EXPECT_EQ(bytes[9], 0U);
}

}  // namespace
