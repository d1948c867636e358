// The matcher's stack use. This program has a stack of 1 MB, as a host's thread has.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "pattern/PatternMatcher.h"

using namespace tavrin::pattern;

namespace {

constexpr std::size_t kPainted = 800 * 1024;
constexpr unsigned char kPaint = 0xA5;

// Where the stack is at the call.
__attribute__((noinline)) volatile unsigned char* StackHere() {
    return static_cast<volatile unsigned char*>(__builtin_frame_address(0));
}

// Fills the stack below the caller. What is called next writes over it.
__attribute__((noinline)) void PaintStack() {
    volatile unsigned char paint[kPainted];
    for (volatile unsigned char& byte : paint) {
        byte = kPaint;
    }
}

// How many bytes of stack the work takes, at most kPainted.
std::size_t StackOf(const std::function<void()>& work) {
    const volatile unsigned char* const top = StackHere();
    PaintStack();
    work();
    const volatile unsigned char* touched = top - kPainted + 4096;
    while (touched < top && *touched == kPaint) {
        ++touched;
    }
    return static_cast<std::size_t>(top - touched);
}

std::wstring Repeated(const std::wstring& text, int count) {
    std::wstring all;
    for (; count > 0; --count) {
        all += text;
    }
    return all;
}

struct Hard {
    const char* name;
    std::wstring pattern;
    std::wstring input;
};

std::vector<Hard> HardOnes() {
    constexpr int kDeep = 20000;
    return {
        {"deep groups", Repeated(L"(", kDeep) + L"a" + Repeated(L")", kDeep), L"a"},
        {"deep captures", Repeated(L"{", kDeep) + L"a" + Repeated(L"}", kDeep), L"a"},
        {"deep alternatives", Repeated(L"(a|", kDeep) + L"b" + Repeated(L")", kDeep), L"b"},
        {"deep look-aheads", Repeated(L"!(", kDeep) + L"a" + Repeated(L")", kDeep), L"b"},
        {"a long input", L"^(a|b)*c", Repeated(L"ab", 500000)},
        {"many choices", L"{a*}{a*}{a*}b", Repeated(L"a", 60)},
    };
}

TEST(Stack, OfOneMegabyteIsAmpleForTheMatcher) {
    for (const Hard& hard : HardOnes()) {
        SCOPED_TRACE(hard.name);
        const std::size_t taken = StackOf([&] {
            CPatternMatcher matcher;
            CMatchContext context;
            matcher.Parse(hard.pattern.c_str(), true);
            matcher.Match(hard.input.c_str(), &context);
        });
        EXPECT_LT(taken, 64U * 1024U);
        EXPECT_GT(taken, 64U);
    }
}

}  // namespace
