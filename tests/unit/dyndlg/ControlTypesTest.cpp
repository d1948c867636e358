// Window classes and their codes, and what each code exchanges.
#include "dyndlg/ControlTypes.h"

#include <gtest/gtest.h>

#include <string>

using namespace tavrin::dyndlg;

namespace {

struct ClassCase {
    std::wstring name;
    unsigned code;
};

TEST(ControlTypes, EachCodeHasItsWindowClass) {
    const ClassCase cases[] = {{L"BUTTON", 128},
                               {L"EDIT", 129},
                               {L"STATIC", 130},
                               {L"LISTBOX", 131},
                               {L"SCROLLBAR", 132},
                               {L"COMBOBOX", 133},
                               {L"msctls_updown32", 134},
                               {L"msctls_progress32", 135},
                               {L"msctls_trackbar32", 136},
                               {L"msctls_hotkey32", 137},
                               {L"SysListView32", 138},
                               {L"SysTreeView32", 139},
                               {L"SysTabControl32", 140},
                               {L"SysAnimate32", 141},
                               {L"RICHEDIT", 142},
                               {L"SysDateTimePick32", 143},
                               {L"SysMonthCal32", 144},
                               {L"SysIPAddress32", 145},
                               {L"ComboBoxEx32", 146}};
    for (const ClassCase& known : cases) {
        EXPECT_EQ(ClassOfTypeCode(known.code), known.name);
        EXPECT_EQ(TypeCodeOfClass(known.name), known.code) << known.code;
    }
}

TEST(ControlTypes, AnyOtherCodeHasNoWindowClass) {
    for (const unsigned code : {0U, 1U, 127U, 147U, 1000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        EXPECT_EQ(ClassOfTypeCode(code), std::wstring()) << code;
    }
}

TEST(ControlTypes, TheFirstCharactersOfANameDecide) {
    const ClassCase prefixes[] = {
        {L"BUT", 128},       {L"ED", 129},       {L"STA", 130},       {L"LIST", 131},      {L"SCROL", 132},
        {L"COMB", 133},      {L"msctls_u", 134}, {L"msctls_pr", 135}, {L"msctls_tr", 136}, {L"msctls_h", 137},
        {L"SysList", 138},   {L"SysTree", 139},  {L"SysTabCo", 140},  {L"SysAni", 141},    {L"RICH", 142},
        {L"SysDateTi", 143}, {L"SysMont", 144},  {L"SysIPAd", 145},   {L"ComboB", 146}};
    for (const ClassCase& known : prefixes) {
        EXPECT_EQ(TypeCodeOfClass(known.name), known.code) << known.code;
        EXPECT_EQ(TypeCodeOfClass(known.name + L"X"), known.code) << known.code;
        EXPECT_EQ(TypeCodeOfClass(L" " + known.name), 0U) << known.code;
        std::wstring shorter = known.name;
        shorter.pop_back();
        EXPECT_EQ(TypeCodeOfClass(shorter), 0U) << known.code;
    }
    EXPECT_EQ(TypeCodeOfClass(L"EDITX"), 129U);
    EXPECT_EQ(TypeCodeOfClass(L"EDGE"), 129U);
    EXPECT_EQ(TypeCodeOfClass(L"RICHEDIT20W"), 142U);
    EXPECT_EQ(TypeCodeOfClass(L"COMBOBOXEX32"), 133U);
    EXPECT_EQ(TypeCodeOfClass(L""), 0U);
}

TEST(ControlTypes, TheCaseOfANameCounts) {
    for (const wchar_t* name :
         {L"Button", L"button", L"Edit", L"eDIT", L"Static", L"ListBox", L"ScrollBar", L"comboBox",
          L"MSCTLS_UPDOWN32", L"SYSLISTVIEW32", L"RichEdit20W", L"sysMonthCal32"}) {
        EXPECT_EQ(TypeCodeOfClass(name), 0U) << testing::PrintToString(name);
    }
    EXPECT_EQ(TypeCodeOfClass(L"COMBobox"), 133U);
    EXPECT_EQ(TypeCodeOfClass(L"ComboBox"), 146U);
}

TEST(ControlTypes, AButtonExchangesByThePatternOfItsStyle) {
    // BS_PUSHBUTTON to BS_OWNERDRAW; 9 and 0xB hold the radio pattern, 3 and 7 the check pattern alone.
    const EExchange expected[16] = {EX_CONTROL, EX_CONTROL, EX_CONTROL, EX_CHECK, EX_CONTROL, EX_CONTROL,
                                    EX_CONTROL, EX_CHECK,   EX_CONTROL, EX_RADIO, EX_CONTROL, EX_RADIO,
                                    EX_CONTROL, EX_RADIO,   EX_CONTROL, EX_RADIO};
    for (unsigned style = 0; style < 16; ++style) {
        EXPECT_EQ(ExchangeOf(CT_BUTTON, style), expected[style]) << style;
        EXPECT_EQ(ExchangeOf(CT_BUTTON, 0x50010000 | style), expected[style]) << style;
    }
}

TEST(ControlTypes, APickerExchangesATimeOrADateByItsStyle) {
    EXPECT_EQ(ExchangeOf(CT_DATETIMEPICK, 0x50010029), EX_TIME);
    EXPECT_EQ(ExchangeOf(CT_DATETIMEPICK, 0x50010009), EX_TIME);
    EXPECT_EQ(ExchangeOf(CT_DATETIMEPICK, 0x50010020), EX_DATE);
    EXPECT_EQ(ExchangeOf(CT_DATETIMEPICK, 0x50010001), EX_DATE);
    EXPECT_EQ(ExchangeOf(CT_DATETIMEPICK, 0x50010008), EX_DATE);
}

TEST(ControlTypes, EveryOtherClassExchangesTheSameWhateverItsStyle) {
    for (const unsigned style : {0U, 3U, 9U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ExchangeOf(CT_EDIT, style), EX_TEXT);
        EXPECT_EQ(ExchangeOf(CT_STATIC, style), EX_TEXT);
        EXPECT_EQ(ExchangeOf(CT_SCROLLBAR, style), EX_SCROLL);
        EXPECT_EQ(ExchangeOf(CT_TRACKBAR, style), EX_SLIDER);
        EXPECT_EQ(ExchangeOf(CT_MONTHCAL, style), EX_CALENDAR_DATE);
        for (const unsigned code : {131U, 133U, 134U, 135U, 137U, 138U, 139U, 140U, 141U, 142U, 145U, 146U}) {
            EXPECT_EQ(ExchangeOf(code, style), EX_CONTROL) << code;
        }
        for (const unsigned code : {0U, 127U, 147U, 0xFFFFFFFFU}) {
            EXPECT_EQ(ExchangeOf(code, style), EX_NONE) << code;
        }
    }
}

}  // namespace
