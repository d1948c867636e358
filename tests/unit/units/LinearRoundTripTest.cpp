// The guarantee that ties the two directions together, over a grid of lengths and over random ones:
// what is written is read as the double nearest to what it says, and written again looks the same.
//
// What a text says is worked out here in another way than the code under test does it: through strtod
// and 128-bit whole numbers.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "units/LinearUnits.h"

using namespace tavrin::units;

namespace {

__extension__ using WideInteger = unsigned __int128;

std::string Digits(WideInteger number) {
    std::string digits;
    do {
        digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(number % 10)));
        number /= 10;
    } while (number != 0);
    return digits;
}

// Takes "12'-" off the front of `text` and gives the feet.
WideInteger TakeFeet(std::string& text) {
    const std::size_t mark = text.find("'-");
    if (mark == std::string::npos) {
        return 0;
    }
    const WideInteger feet = std::strtoull(text.c_str(), nullptr, 10);
    text.erase(0, mark + 2);
    return feet;
}

// The meaning of a text as FormatLinear writes it.
double Meaning(const std::wstring& wide) {
    std::string text(wide.begin(), wide.end());
    const bool negative = text.front() == '-';
    if (negative) {
        text.erase(0, 1);
    }
    if (text.back() == '"') {
        text.pop_back();
    }
    const WideInteger feet = TakeFeet(text);

    double magnitude;
    const std::size_t slash = text.find('/');
    if (slash != std::string::npos) {
        const std::size_t blank = text.find(' ');
        const WideInteger whole =
            blank == std::string::npos ? 0 : WideInteger(std::strtoull(text.c_str(), nullptr, 10));
        const WideInteger numerator =
            std::strtoull(text.c_str() + (blank == std::string::npos ? 0 : blank + 1), nullptr, 10);
        const WideInteger denominator = std::strtoull(text.c_str() + slash + 1, nullptr, 10);
        // The denominators are powers of two, so that the division rounds nothing.
        magnitude = static_cast<double>((feet * 12 + whole) * denominator + numerator) /
                    static_cast<double>(denominator);
    } else if (feet != 0) {
        const std::size_t point = std::min(text.find('.'), text.size());
        const WideInteger inches = std::strtoull(text.c_str(), nullptr, 10);
        magnitude = std::strtod((Digits(feet * 12 + inches) + text.substr(point)).c_str(), nullptr);
    } else {
        magnitude = std::strtod(text.c_str(), nullptr);
    }
    return negative ? -magnitude : magnitude;
}

// Half a step of the text's last digit or of its largest denominator.
double HalfStep(const std::wstring& text, int units, int precision) {
    const std::size_t exponent = text.find(L'E');
    if (exponent != std::wstring::npos) {
        return 0.5 * std::pow(10.0, std::wcstol(text.c_str() + exponent + 1, nullptr, 10) - precision);
    }
    if (units == LU_ARCHITECTURAL || units == LU_FRACTIONAL) {
        return std::ldexp(0.5, -precision);
    }
    return 0.5 * std::pow(10.0, -precision);
}

void CheckRoundTrip(double value, int units, int precision) {
    const auto text = FormatLinear(value, units, precision);
    ASSERT_TRUE(text) << value;
    ASSERT_LE(text->size(), 255u);
    const auto where = [&] {
        return std::string(text->begin(), text->end()) + " for " + std::to_string(value) + ", units " +
               std::to_string(units) + ", precision " + std::to_string(precision);
    };

    const auto read = ParseLinear(*text);
    ASSERT_TRUE(read) << where();
    const double meaning = Meaning(*text);
    ASSERT_EQ(*read, meaning) << where();
    ASSERT_EQ(FormatLinear(*read, units, precision), *text) << where();

    if (std::fabs(value) < 1e-300) {
        ASSERT_EQ(*read, 0) << where();
        return;
    }
    // Next to the largest double the text is cut, which costs up to a whole step.
    const double steps = std::fabs(value) > 1e308 ? 2 : 1;
    const double slack = std::fabs(value) * 4 * std::numeric_limits<double>::epsilon();
    ASSERT_LE(std::fabs(*read - value), steps * HalfStep(*text, units, precision) * (1 + 1e-9) + slack)
        << where();
}

void CheckEveryFormat(double value) {
    for (int units = LU_SCIENTIFIC; units <= LU_FRACTIONAL; ++units) {
        for (int precision = 0; precision <= kMaxLinearPrecision; ++precision) {
            CheckRoundTrip(value, units, precision);
            CheckRoundTrip(-value, units, precision);
            if (testing::Test::HasFatalFailure()) {
                return;
            }
        }
    }
}

void CheckAll(const std::vector<double>& values) {
    for (const double value : values) {
        CheckEveryFormat(value);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(LinearRoundTrip, EveryMultipleOfA512thUpToThreeFeet) {
    std::vector<double> values;
    for (int i = 0; i <= 36 * 512; ++i) {
        values.push_back(i / 512.0);
    }
    CheckAll(values);
}

TEST(LinearRoundTrip, EveryThousandthUpToThirteenInches) {
    std::vector<double> values;
    for (int i = 0; i <= 13'000; ++i) {
        values.push_back(i / 1000.0);
    }
    CheckAll(values);
}

TEST(LinearRoundTrip, NeighboursOfWholeFeetAndOfEachPowerOfTenAndTwo) {
    std::vector<double> values;
    const auto addWithNeighbors = [&](double value) {
        values.push_back(std::nextafter(value, 0));
        values.push_back(value);
        if (value < std::numeric_limits<double>::max()) {
            values.push_back(std::nextafter(value, std::numeric_limits<double>::infinity()));
        }
    };
    for (int feet = 1; feet <= 200; ++feet) {
        addWithNeighbors(12.0 * feet);
    }
    for (int exponent = -323; exponent <= 308; ++exponent) {
        for (const double digit : {1.0, 5.0, 9.5, 9.999999999}) {
            if (const double value = digit * std::pow(10.0, exponent); std::isfinite(value)) {
                addWithNeighbors(value);
            }
        }
    }
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        addWithNeighbors(std::ldexp(1.0, exponent));
    }
    values.push_back(std::numeric_limits<double>::max());
    CheckAll(values);
}

TEST(LinearRoundTrip, RandomLengths) {
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::printf("seed %u\n", seed);
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> usual(0, 100'000);
    std::uniform_real_distribution<double> exponents(-20, 20);
    for (int i = 0; i < 4'000; ++i) {
        CheckEveryFormat(usual(random));
        CheckEveryFormat(std::pow(10.0, exponents(random)));
        double anyBits;
        const std::uint64_t bits = random();
        std::memcpy(&anyBits, &bits, sizeof anyBits);
        if (std::isfinite(anyBits)) {
            CheckEveryFormat(std::fabs(anyBits));
        }
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(LinearRoundTrip, RandomTextsAreReadOrRefusedButNeverTrip) {
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::printf("seed %u\n", seed);
    std::mt19937 random(seed);
    const std::wstring letters = L"0129.'\"-/ eE+x";
    int readable = 0;
    for (int i = 0; i < 300'000; ++i) {
        std::wstring text;
        for (auto length = random() % 10; length > 0; --length) {
            text += letters[random() % letters.size()];
        }
        const auto value = ParseLinear(text);
        if (!value) {
            continue;
        }
        ++readable;
        ASSERT_TRUE(std::isfinite(*value));
        ASSERT_TRUE(std::any_of(text.begin(), text.end(), [](wchar_t c) { return c >= '0' && c <= '9'; }));
        ASSERT_EQ(text.find(L'x'), std::wstring::npos);
    }
    EXPECT_GT(readable, 1000);
}

}  // namespace
