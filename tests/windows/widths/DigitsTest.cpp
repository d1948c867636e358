// The digits of real numbers in the files: the same in 32 and 64 bits, whatever precision the host has set
// the processor's own floating-point unit to.
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "itemdlg/NumberText.h"
#include "units/LinearUnits.h"

using namespace tavrin::units;

using namespace tavrin::itemdlg;

namespace {

// Sets the precision of the old floating-point unit while it lives. The standard library's own code may use
// it.
class CPrecision {
public:
    enum EBits : unsigned short { kSingle = 0x000, kDouble = 0x200, kExtended = 0x300 };

    explicit CPrecision(EBits bits) {
        __asm__ volatile("fnstcw %0" : "=m"(m_before));
        Load(static_cast<unsigned short>((m_before & ~kExtended) | bits));
    }
    ~CPrecision() { Load(m_before); }
    CPrecision(const CPrecision&) = delete;
    CPrecision& operator=(const CPrecision&) = delete;

private:
    static void Load(unsigned short word) { __asm__ volatile("fldcw %0" : : "m"(word)); }

    unsigned short m_before = 0;
};

// A sum of texts (FNV-1a) that no two different lists of them share in practice.
class CDigits {
public:
    void Add(const std::wstring& text) {
        for (const wchar_t character : text + L'\n') {
            m_sum = (m_sum ^ static_cast<unsigned char>(character)) * 1099511628211U;
        }
    }
    std::uint64_t Sum() const { return m_sum; }

private:
    std::uint64_t m_sum = 14695981039346656037U;
};

// Numbers as people type them: up to nine digits, a point somewhere, now and then an exponent.
class CTypedNumbers {
public:
    std::wstring Next() {
        std::wstring text = std::to_wstring(Below(1'000'000'000));
        text.insert(Below(text.size() + 1), L".");
        if (Below(8) == 0) {
            text += L'e' + std::to_wstring(static_cast<int>(Below(40)) - 20);
        }
        return text;
    }

private:
    std::size_t Below(std::size_t limit) {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::size_t>((m_state >> 33) % limit);
    }

    std::uint64_t m_state = 1;
};

std::uint64_t SumOfFileTexts() {
    constexpr int kNumbers = 20000;
    CDigits digits;
    CTypedNumbers numbers;
    for (int count = 0; count < kNumbers; ++count) {
        const double value = DecimalValue(numbers.Next());
        const double scale = DecimalValue(numbers.Next());
        digits.Add(GeneralText(value));
        digits.Add(GeneralText(value * scale));
        digits.Add(GeneralText(value / scale));
        digits.Add(IntText(FloorToInt(value * scale)));
    }
    return digits.Sum();
}

std::uint64_t SumOfDrawingTexts() {
    constexpr int kNumbers = 4000;
    CDigits digits;
    CTypedNumbers numbers;
    for (int count = 0; count < kNumbers; ++count) {
        const double value = DecimalValue(numbers.Next());
        for (int units = LU_SCIENTIFIC; units <= LU_FRACTIONAL; ++units) {
            digits.Add(FormatLinear(value * 25.4, units, count % 9).value_or(L"-"));
        }
    }
    return digits.Sum();
}

class Digits : public testing::TestWithParam<CPrecision::EBits> {};

TEST_P(Digits, OfTheFilesAreTheSameOnEveryMachine) {
    const CPrecision precision(GetParam());
    EXPECT_EQ(SumOfFileTexts(), 1961094894046326601U);
}

TEST_P(Digits, OfTheDrawingsFormatsAreTheSameOnEveryMachine) {
    const CPrecision precision(GetParam());
    EXPECT_EQ(SumOfDrawingTexts(), 2448672998867532011U);
}

// Each step is rounded to 64 bits: with more of them in between, the product would be above 1 and the
// quotient 3.
TEST_P(Digits, ComeFromStepsThatAreEachRounded) {
    const CPrecision precision(GetParam());
    volatile double tenth = 0.1;
    volatile double ten = 10.0;
    EXPECT_EQ(tenth * ten - 1.0, 0.0);
    volatile double third = 1.0;
    third = third / 3.0;
    EXPECT_EQ(third * 3.0 - 1.0, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Precision, Digits, testing::Values(CPrecision::kDouble, CPrecision::kExtended),
                         [](const auto& info) {
                             return info.param == CPrecision::kDouble ? "Double" : "Extended";
                         });

}  // namespace
