#include "sds/HostBinding.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "sds/sds.h"
#include "tests/windows/support/FakeHost.h"

namespace {

// Every test leaves the functions bound to the test program again.
class HostBinding : public testing::Test {
protected:
    void TearDown() override { BindHost(GetModuleHandleW(nullptr)); }
};

TEST_F(HostBinding, FindsEveryFunctionInTheProcessesOwnExecutable) {
    EXPECT_EQ(BindHost(GetModuleHandleW(nullptr)), L"");
    fakeHost = {};
    sds_retint(7);
    EXPECT_EQ(fakeHost.results, std::vector<std::string>{"7"});
}

TEST_F(HostBinding, NamesEveryFunctionThatTheHostDoesNotExport) {
    const std::wstring missing = BindHost(GetModuleHandleW(L"kernel32.dll"));
    for (const wchar_t* name :
         {L"sds_defun", L"sds_undef", L"sds_getfuncode", L"sds_getargs", L"sds_retint", L"sds_retnil",
          L"sds_retlist", L"sds_buildlist", L"sds_fail", L"sds_alert", L"sds_getmainhwnd", L"sds_findfile",
          L"sds_getvar", L"sds_rtos", L"sds_distof", L"sds_getpoint", L"sds_getdist"}) {
        EXPECT_NE((L'\n' + missing + L'\n').find(L'\n' + std::wstring(name) + L'\n'), std::wstring::npos)
            << name;
    }
}

TEST_F(HostBinding, ForwardsVariableArguments) {
    const sds_resbuf* list = sds_buildlist(RTSHORT, 100, RTSTR, L"A", RTNONE);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->value.integer, 100);
    ASSERT_NE(list->next, nullptr);
    EXPECT_STREQ(list->next->value.string, L"A");
    EXPECT_EQ(list->next->next, nullptr);
}

}  // namespace
