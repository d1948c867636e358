// The module's own resources: the templates of its dialogs, their language, the module's name.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <cwchar>
#include <iterator>
#include <string>

#include "res/resource.h"

namespace {

// An extended dialog template as text: a line for the dialog, one for its font, one for each control. Styles
// are in hexadecimal digits, the extended one in brackets; a class is its name, or "#N" for an ordinal.
class CTemplateReader {
public:
    CTemplateReader(int id, LANGID language) {
        const HRSRC resource = FindResourceExW(nullptr, RT_DIALOG, MAKEINTRESOURCEW(id), language);
        m_start = m_next = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, resource)));
    }

    std::wstring Read() {
        if (m_start == nullptr) {
            return L"none in this language";
        }
        m_next += 8;  // version, signature, help id
        const std::wstring style = Style();
        const int count = Take<WORD>();
        const std::wstring area = Area();
        std::wstring text = area + style;
        text += L" menu '" + Name();
        text += L"' class '" + Name();
        text += L"' '" + Name() + L"'\n";
        text += Number<WORD>() + L" points";
        text += L", weight " + Number<WORD>();
        text += L", italic " + Number<BYTE>();
        text += L", character set " + Number<BYTE>();
        text += L", " + Name() + L"\n";
        for (int index = 0; index < count; ++index) {
            text += ReadControl();
        }
        return text;
    }

private:
    std::wstring ReadControl() {
        m_next += (4 - (m_next - m_start) % 4) % 4 + 4;  // to a 4-byte boundary; help id
        const std::wstring style = Style();
        const std::wstring area = Area();
        std::wstring text = Number<DWORD>() + L": " + area + style;
        text += L" " + Name();
        text += L" '" + Name() + L"'\n";
        m_next += Take<WORD>();
        return text;
    }

    std::wstring Style() {
        const auto extended = Take<DWORD>(), style = Take<DWORD>();
        wchar_t text[40];
        std::swprintf(text, std::size(text), L" %08lX (%lX)", style, extended);
        return text;
    }
    std::wstring Area() {
        std::wstring text;
        for (int number = 0; number < 4; ++number) {
            text += (number == 0 ? L"" : L" ") + Number<short>();
        }
        return text;
    }

    template <typename T>
    std::wstring Number() {
        return std::to_wstring(Take<T>());
    }

    template <typename T>
    T Take() {
        T value;
        std::memcpy(&value, m_next, sizeof(value));
        m_next += sizeof(value);
        return value;
    }

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

std::wstring ReadDialog(int id) {
    return CTemplateReader(id, MAKELANGID(LANG_ITALIAN, SUBLANG_ITALIAN)).Read();
}

BOOL CALLBACK CountLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD, LONG_PTR count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

TEST(Resources, TheItemDialogHasItsLayout) {
    EXPECT_EQ(ReadDialog(IDD_ITEM),
              L"0 0 645 290 80C800C0 (0) menu '' class '' 'Item - Property'\n"
              L"8 points, weight 400, italic 0, character set 0, Microsoft Sans Serif\n"
              L"1: 539 272 50 14 50010001 (0) #128 'OK'\n"
              L"2: 591 272 50 14 50010000 (0) #128 'Cancel'\n"
              L"100: 453 18 192 252 50000107 (0) STATIC ''\n"
              L"101: 0 0 453 290 50020000 (0) STATIC ''\n"
              L"102: 453 0 192 18 5000000C (0) STATIC '  Parametri'\n");
}

TEST(Resources, TheChoiceDialogHasItsLayout) {
    EXPECT_EQ(ReadDialog(IDD_CHOICE),
              L"0 0 710 329 80C800C8 (0) menu '' class '' ''\n"
              L"8 points, weight 400, italic 0, character set 1, MS Shell Dlg\n"
              L"1: 594 312 50 14 50010001 (0) #128 'OK'\n"
              L"2: 653 312 50 14 50010000 (0) #128 'Cancel'\n"
              L"112: 92 312 53 14 40010000 (0) BUTTON 'Replace'\n"
              L"104: 4 4 229 146 50020100 (0) STATIC 'Static'\n"
              L"105: 240 4 229 146 50020100 (0) STATIC 'Static'\n"
              L"106: 475 4 229 146 50020100 (0) STATIC 'Static'\n"
              L"107: 4 159 229 148 50020100 (0) STATIC 'Static'\n"
              L"108: 240 159 229 148 50020100 (0) STATIC 'Static'\n"
              L"109: 475 159 229 148 50020100 (0) STATIC 'Static'\n");
}

TEST(Resources, ThePreviewDialogHasItsLayout) {
    EXPECT_EQ(ReadDialog(IDD_PREVIEW),
              L"0 0 467 304 80C800C8 (0) menu '' class '' ''\n"
              L"8 points, weight 400, italic 0, character set 1, MS Shell Dlg\n"
              L"114: 7 7 453 290 50020000 (0) STATIC ''\n");
}

TEST(Resources, TheDialogsExistInItalianOnly) {
    for (const int id : {IDD_ITEM, IDD_CHOICE, IDD_PREVIEW}) {
        int languages = 0;
        EnumResourceLanguagesW(nullptr, RT_DIALOG, MAKEINTRESOURCEW(id), CountLanguage,
                               reinterpret_cast<LONG_PTR>(&languages));
        EXPECT_EQ(languages, 1) << id;
    }
}

TEST(Resources, TheModuleHasAName) {
    wchar_t text[20];
    LoadStringW(GetModuleHandleW(nullptr), IDS_MODULE_NAME, text, 20);
    EXPECT_STREQ(text, L"TavrinWnd");
}

}  // namespace
