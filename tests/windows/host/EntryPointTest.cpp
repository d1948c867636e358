#include <gtest/gtest.h>

#include "sds/sds.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/FakeHost.h"

extern "C" int icrxEntryPoint(unsigned request, void* packet);

namespace {

using Registered = std::vector<std::pair<std::wstring, int>>;
const Registered threeFunctions = {{L"tavrinwnd", 0}, {L"tavrinselmask", 1}, {L"tavrinprevmask", 2}};

class EntryPoint : public testing::Test {
protected:
    void SetUp() override { fakeHost = {}; }
};

TEST_F(EntryPoint, LoadRegistersTheThreeFunctionsAndDoesNothingElse) {
    EXPECT_EQ(icrxEntryPoint(1, nullptr), 0);
    EXPECT_EQ(fakeHost.defined, threeFunctions);
    EXPECT_TRUE(fakeHost.undefined.empty());
    EXPECT_TRUE(fakeHost.alerts.empty());
    EXPECT_TRUE(fakeHost.results.empty());
}

TEST_F(EntryPoint, UnloadRemovesTheThreeFunctions) {
    icrxEntryPoint(1, nullptr);
    EXPECT_EQ(icrxEntryPoint(2, nullptr), 0);
    EXPECT_EQ(fakeHost.undefined, threeFunctions);
}

TEST_F(EntryPoint, RegisteringStopsOnlyWhenTheHostAnswersZero) {
    fakeHost.defunStatus = 0;
    EXPECT_EQ(icrxEntryPoint(1, nullptr), 0);
    EXPECT_EQ(icrxEntryPoint(2, nullptr), 0);
    EXPECT_EQ(fakeHost.defined.size(), 1U);
    EXPECT_EQ(fakeHost.undefined.size(), 1U);
    fakeHost = {};
    fakeHost.defunStatus = -5001;
    icrxEntryPoint(1, nullptr);
    icrxEntryPoint(2, nullptr);
    EXPECT_EQ(fakeHost.defined, threeFunctions);
    EXPECT_EQ(fakeHost.undefined, threeFunctions);
}

TEST_F(EntryPoint, AnUnknownFunctionCodeIsReported) {
    icrxEntryPoint(1, nullptr);
    for (const int code : {3, -1, 1000000}) {
        fakeHost = {};
        fakeHost.functionCode = code;
        EXPECT_EQ(icrxEntryPoint(5, nullptr), 0);
        EXPECT_EQ(fakeHost.failures, std::vector<std::wstring>{L"Invalid function code."}) << code;
        EXPECT_TRUE(fakeHost.results.empty()) << code;
    }
}

TEST_F(EntryPoint, InvokeRunsTheFunctionOfTheCode) {
    icrxEntryPoint(1, nullptr);
    CArguments arguments;
    arguments.String(L"");
    for (const int code : {1, 2}) {
        fakeHost = {};
        fakeHost.functionCode = code;
        // An argument of the wrong type ends each function before any dialog.
        CArguments number;
        number.Short(5);
        fakeHost.arguments = code == 2 ? number.List() : nullptr;
        EXPECT_EQ(icrxEntryPoint(5, nullptr), 0);
        EXPECT_TRUE(fakeHost.failures.empty()) << code;
        EXPECT_TRUE(fakeHost.results.empty()) << code;
    }
}

TEST_F(EntryPoint, TheOtherRequestsAskForNothing) {
    icrxEntryPoint(1, nullptr);
    fakeHost = {};
    for (const unsigned request : {0U, 3U, 4U, 6U, 7U, 8U, 9U, 10U, 11U, 12U, 13U, 14U, 15U, 16U, 17U}) {
        EXPECT_EQ(icrxEntryPoint(request, nullptr), 0) << request;
    }
    for (const unsigned request : {18U, 19U, 1000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(icrxEntryPoint(request, nullptr), 3) << request;
    }
    EXPECT_TRUE(fakeHost.defined.empty());
    EXPECT_TRUE(fakeHost.undefined.empty());
    EXPECT_TRUE(fakeHost.failures.empty());
    EXPECT_TRUE(fakeHost.results.empty());
}

}  // namespace
