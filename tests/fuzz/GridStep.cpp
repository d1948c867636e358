#include "tests/fuzz/GridStep.h"

#include <climits>
#include <iterator>

namespace tests {

std::wstring MakeText(unsigned seed) {
    static const wchar_t* const texts[] = {
        L"",     L"a",    L"B",       L"b",      L"12abc",      L"-7",   L" +8 ",         L"0.5",
        L"1e3x", L".5e-", L"0x10",    L"inf",    L"9999999999", L"-",    L"-99999999999", L"12345678.125",
        L"aa",   L"ab",   L"c\u00e4", L"\u20ac", L"long name",  L"name", L"Name",         L"z",
    };
    return texts[seed % std::size(texts)];
}

SlotValue MakeValue(unsigned seed) {
    static constexpr int numbers[] = {0, 1, 2, 3, -1, -2, 100, INT_MAX, INT_MIN};
    static constexpr double reals[] = {0.0, 0.1, -2.5, 1e300, 12345678.9, 1.0 / 3, -0.0};
    static constexpr double days[] = {0.0, 45000.75, -1.25, 45001.0, -20000.5};
    SlotValue value;
    value.number = numbers[seed % std::size(numbers)];
    value.real = reals[seed % std::size(reals)];
    value.text = MakeText(seed / 2);
    value.flag = seed % 2 == 1;
    value.days = days[seed % std::size(days)];
    value.status = static_cast<int>(seed / 8 % 3);
    value.color = seed * 0x010203U;
    value.font[seed % value.font.size()] = static_cast<std::uint8_t>(seed);
    value.custom = seed % kCustomItems;
    return value;
}

}  // namespace tests
