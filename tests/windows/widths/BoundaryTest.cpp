// The boundary between host and module: the layout of the values that pass it, who takes the arguments from
// the stack, and how the stack may lie.
#include <gtest/gtest.h>

#include <cstddef>

#include "sds/sds.h"
#include "tests/windows/module/CommandDriver.h"
#include "tests/windows/module/LoadedModule.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

namespace {

constexpr bool is64 = sizeof(void*) == 8;

TEST(BoundaryLayout, OfAHostValueIsThatOfTheSystemsCompilers) {
    EXPECT_EQ(offsetof(sds_resbuf, next), 0U);
    EXPECT_EQ(offsetof(sds_resbuf, type), sizeof(void*));
    EXPECT_EQ(offsetof(sds_resbuf, value), is64 ? 16U : 8U);
    EXPECT_EQ(sizeof(sds_resbuf), is64 ? 40U : 32U);
    EXPECT_EQ(sizeof(sds_resbuf::value), 24U);
}

TEST(BoundaryLayout, HasCharactersOfTwoBytesAndWholeNumbersOfFour) {
    EXPECT_EQ(sizeof(wchar_t), 2U);
    EXPECT_EQ(sizeof(int), 4U);
    EXPECT_EQ(sizeof(long), 4U);
    EXPECT_EQ(sizeof(HWND), sizeof(void*));
}

// Calls the entry with a stack pointer that is `offset` bytes below a multiple of 16, and sets `taken`
// how many bytes of the arguments the entry took from the stack. In 64-bit programs the convention leaves
// nothing to differ.
#ifdef _WIN64
int CallEntry(int (*entry)(unsigned, void*), unsigned request, unsigned /*offset*/, int& taken) {
    taken = 0;
    return entry(request, nullptr);
}
#else
int CallEntry(int (*entry)(unsigned, void*), unsigned request, unsigned offset, int& taken) {
    auto answer = reinterpret_cast<int>(entry);
    auto before = reinterpret_cast<void*>(offset);
    auto after = reinterpret_cast<void*>(request);
    __asm__ volatile(
        "movl %%esp, %%ebx\n\t"
        "andl $-16, %%esp\n\t"
        "subl %%esi, %%esp\n\t"
        "pushl $0\n\t"
        "pushl %%edi\n\t"
        "movl %%esp, %%esi\n\t"
        "call *%%eax\n\t"
        "movl %%esp, %%edi\n\t"
        "movl %%ebx, %%esp"
        : "+a"(answer), "+S"(before), "+D"(after)
        :
        : "ebx", "ecx", "edx", "memory", "cc");
    taken = static_cast<int>(static_cast<char*>(after) - static_cast<char*>(before));
    return answer;
}
#endif

class Boundary : public testing::Test {
protected:
    void SetUp() override {
        OfferTextModule();
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
        m_folder.Write(L"item.TXT", kItem);
        m_folder.Write(L"item_TMP.TXT", kItem);
        m_folder.Write(L"item.png", BitmapFile(2, 2, std::vector<unsigned>(4, 0x3060C0)));
    }

    static constexpr const char* kItem =
        "Title\nVAR\n$1 = \"<<1501>>\"D 900\n$2 = \"<<1502>>\"R 2.5\nEND_VAR\n";
    CTempFolder m_folder;
};

TEST_F(Boundary, LeavesTheArgumentsToTheCaller) {
    const CLoadedModule module;
    for (const unsigned request : {SDS_LOAD, SDS_INVOKE, SDS_LAST_REQUEST, SDS_LAST_REQUEST + 1}) {
        int taken = -1;
        CallEntry(module.Entry(), request, 0, taken);
        EXPECT_EQ(taken, 0) << request;
    }
}

// A 32-bit host's stack is aligned to 4 bytes, and no more is promised to what the system calls.
TEST_F(Boundary, TakesAStackThatIsAlignedToFourBytes) {
    for (const unsigned offset : {0U, 4U, 8U, 12U}) {
        SCOPED_TRACE(offset);
        const CLoadedModule module;
        CArguments arguments;
        arguments.String(L"item").Real(1.5).Short(1);
        fakeHost.functionCode = 0;
        fakeHost.arguments = arguments.List();
        fakeHost.results.clear();
        CCommandDriver driver;
        int taken = -1;
        EXPECT_EQ(CallEntry(module.Entry(), SDS_INVOKE, offset, taken), 0);
        EXPECT_EQ(taken, 0);
        EXPECT_EQ(fakeHost.results, std::vector<std::string>{"0"});
        EXPECT_EQ(driver.confirmed, 1);
    }
}

// Every kind of parameter and result that the interface has, through the module's calls: a real number, a
// short one, texts, a buffer with its size, lists of values.
TEST_F(Boundary, PassesEveryKindOfValue) {
    const CLoadedModule module;
    std::vector<double> values;
    std::vector<int> formats;
    fakeHost.linearUnits = 4;
    fakeHost.precision = 3;
    fakeHost.distanceText = [&](double value, int units, int precision) {
        values.push_back(value);
        formats = {units, precision};
        return std::optional<std::wstring>(L"1'-6\"");
    };
    std::vector<size_t> capacities;
    fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t capacity) {
        capacities.push_back(capacity);
        const std::wstring path = m_folder.Path(name);
        path.copy(result, path.size());
        result[path.size()] = L'\0';
        return FakeHost::RtNorm;
    };
    CArguments arguments;
    arguments.String(L"item").Real(1.5).Short(1);
    fakeHost.arguments = arguments.List();
    CCommandDriver driver;
    module.Invoke(0);
    EXPECT_EQ(fakeHost.results, std::vector<std::string>{"0"});
    ASSERT_FALSE(values.empty());
    EXPECT_EQ(values.front(), 900.0 * 1.5);
    EXPECT_EQ(formats, (std::vector<int>{4, 3}));
    ASSERT_FALSE(capacities.empty());
    EXPECT_EQ(capacities.front(), 254U);
}

}  // namespace
