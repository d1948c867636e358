#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "res/resource.h"

namespace {

// What an extended dialog template says of the dialog and of each control.
struct DialogControl {
    unsigned id;
    std::wstring className;
    std::wstring text;
    int x, y, width, height;
    unsigned style;
};

struct Dialog {
    unsigned style = 0;
    int width = 0, height = 0;
    std::wstring caption, face;
    int points = 0;
    std::vector<DialogControl> controls;
};

class CTemplateReader {
public:
    explicit CTemplateReader(int id) {
        const HRSRC resource = FindResourceW(nullptr, MAKEINTRESOURCEW(id), RT_DIALOG);
        m_start = m_next = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, resource)));
    }

    Dialog Read() {
        Dialog dialog;
        m_next += 12;  // version, signature, help id, extended style
        dialog.style = Take<DWORD>();
        const int count = Take<WORD>();
        m_next += 4;  // position
        dialog.width = Take<short>();
        dialog.height = Take<short>();
        Name();  // menu
        Name();  // class
        dialog.caption = Name();
        dialog.points = Take<WORD>();
        m_next += 4;  // weight, italic, character set
        dialog.face = Name();
        for (int index = 0; index < count; ++index) {
            dialog.controls.push_back(ReadControl());
        }
        return dialog;
    }

private:
    DialogControl ReadControl() {
        m_next += (4 - (m_next - m_start) % 4) % 4 + 8;  // to a 4-byte boundary; help id, extended style
        DialogControl control = {};
        control.style = Take<DWORD>();
        control.x = Take<short>();
        control.y = Take<short>();
        control.width = Take<short>();
        control.height = Take<short>();
        control.id = Take<DWORD>();
        control.className = Name();
        control.text = Name();
        m_next += Take<WORD>();
        return control;
    }

    template <typename T>
    T Take() {
        T value;
        std::memcpy(&value, m_next, sizeof(value));
        m_next += sizeof(value);
        return value;
    }

    // A text, or "#N" for an ordinal.
    std::wstring Name() {
        std::wstring name;
        for (WORD unit = Take<WORD>(); unit != 0; unit = Take<WORD>()) {
            if (unit == 0xFFFF) {
                return L"#" + std::to_wstring(Take<WORD>());
            }
            name += static_cast<wchar_t>(unit);
        }
        return name;
    }

    const BYTE* m_start;
    const BYTE* m_next;
};

void ExpectControl(const DialogControl& control, unsigned id, const std::wstring& text, int x, int y,
                   int width, int height) {
    EXPECT_EQ(control.id, id);
    EXPECT_EQ(control.text, text) << id;
    EXPECT_EQ(control.x, x) << id;
    EXPECT_EQ(control.y, y) << id;
    EXPECT_EQ(control.width, width) << id;
    EXPECT_EQ(control.height, height) << id;
}

TEST(Resources, TheItemDialogHasItsLayout) {
    const Dialog dialog = CTemplateReader(IDD_ITEM).Read();
    EXPECT_EQ(dialog.caption, L"Item - Property");
    EXPECT_EQ(dialog.face, L"Microsoft Sans Serif");
    EXPECT_EQ(dialog.points, 8);
    EXPECT_EQ(dialog.width, 645);
    EXPECT_EQ(dialog.height, 290);
    EXPECT_EQ(dialog.style, WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT);
    ASSERT_EQ(dialog.controls.size(), 5U);
    ExpectControl(dialog.controls[0], 1, L"OK", 539, 272, 50, 14);
    ExpectControl(dialog.controls[1], 2, L"Cancel", 591, 272, 50, 14);
    ExpectControl(dialog.controls[2], 100, L"", 453, 18, 192, 252);
    ExpectControl(dialog.controls[3], 101, L"", 0, 0, 453, 290);
    ExpectControl(dialog.controls[4], 102, L"  Parametri", 453, 0, 192, 18);
    EXPECT_EQ(dialog.controls[0].style & 0xFU, BS_DEFPUSHBUTTON);
    EXPECT_NE(dialog.controls[0].style & WS_TABSTOP, 0U);
    EXPECT_NE(dialog.controls[1].style & WS_TABSTOP, 0U);
    EXPECT_EQ(dialog.controls[2].style & 0x1FFU, SS_BLACKFRAME | SS_NOTIFY);
    EXPECT_NE(dialog.controls[3].style & WS_GROUP, 0U);
    EXPECT_EQ(dialog.controls[4].style & 0x1FU, SS_LEFTNOWORDWRAP);
}

TEST(Resources, TheChoiceDialogHasItsLayout) {
    const Dialog dialog = CTemplateReader(IDD_CHOICE).Read();
    EXPECT_EQ(dialog.caption, L"");
    EXPECT_EQ(dialog.face, L"MS Shell Dlg");
    EXPECT_EQ(dialog.style, 0x80C800C8U);
    EXPECT_EQ(dialog.width, 710);
    EXPECT_EQ(dialog.height, 329);
    ASSERT_EQ(dialog.controls.size(), 9U);
    const int left[] = {4, 240, 475};
    for (unsigned cell = 0; cell < 6; ++cell) {
        const bool top = cell < 3;
        ExpectControl(dialog.controls[cell], 104 + cell, L"Static", left[cell % 3], top ? 4 : 159, 229,
                      top ? 146 : 148);
        EXPECT_EQ(dialog.controls[cell].style, 0x50020100U);
    }
    ExpectControl(dialog.controls[6], 1, L"OK", 594, 312, 50, 14);
    ExpectControl(dialog.controls[7], 2, L"Cancel", 653, 312, 50, 14);
    ExpectControl(dialog.controls[8], 112, L"Replace", 92, 312, 53, 14);
    EXPECT_EQ(dialog.controls[8].style, 0x40010000U);
}

TEST(Resources, ThePreviewDialogHasItsLayout) {
    const Dialog dialog = CTemplateReader(IDD_PREVIEW).Read();
    EXPECT_EQ(dialog.caption, L"");
    EXPECT_EQ(dialog.style, 0x80C800C8U);
    EXPECT_EQ(dialog.width, 467);
    EXPECT_EQ(dialog.height, 304);
    ASSERT_EQ(dialog.controls.size(), 1U);
    ExpectControl(dialog.controls[0], 114, L"", 7, 7, 453, 290);
    EXPECT_EQ(dialog.controls[0].style, 0x50020000U);
}

TEST(Resources, TheModuleHasAName) {
    wchar_t text[20];
    LoadStringW(GetModuleHandleW(nullptr), IDS_MODULE_NAME, text, 20);
    EXPECT_STREQ(text, L"TavrinWnd");
}

}  // namespace
