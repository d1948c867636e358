// A plug-in that crashes ends DevHost with status 3 and a line that says where.
#include <gtest/gtest.h>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

void ExpectCrash(const std::vector<std::wstring>& arguments, const std::string& report,
                 const std::string& also = "") {
    const Outcome outcome = RunHost(arguments);
    EXPECT_EQ(outcome.status, 3u);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.substr(0, report.size()), report) << outcome.errors;
    EXPECT_NE(outcome.errors.find(also), std::string::npos) << outcome.errors;
}

// The system knows the callers of 64-bit code alone.
constexpr bool is64 = sizeof(void*) == 8;

TEST(Crash, InACallNamesTheModuleTheOffsetAndTheException) {
    ExpectCrash({L"--eval", L"(crash)"}, "DevHost: crash in TestPlugin.dll+0x",
                ", exception c0000005 at address " + std::string(2 * sizeof(void*), '0') + "\n");
    ExpectCrash({L"--eval", L"(crash)"}, "DevHost: crash in TestPlugin.dll+0x",
                is64 ? "\n  called from DevHost.exe+0x" : "");
}

TEST(Crash, InAWindowProcedureIsNotSwallowedByTheSystem) {
    ExpectCrash({L"--eval", L"(crash-in-window)"}, "DevHost: crash in TestPlugin.dll+0x");
}

TEST(Crash, InTheRuntimeLibraryNamesTheCallerToo) {
    ExpectCrash({L"--eval", L"(crash-in-runtime)"}, "DevHost: crash in msvcrt.dll+0x",
                is64 ? "\n  called from TestPlugin.dll+0x" : "");
}

TEST(Crash, InTheLoadRequestIsReported) {
    const CEnvironment crash(L"TESTPLUGIN_LOAD", L"crash");
    ExpectCrash({L"--eval", L"(give-nil)"}, "DevHost: crash in TestPlugin.dll+0x");
}

// In 32-bit programs the compiler's exceptions are no exceptions of the system: one that is not caught in
// the plug-in's own file ends the program.
TEST(Crash, AnExceptionThatLeavesThePlugInIsOne) {
    ExpectCrash({L"--eval", L"(throw-out)"},
                is64 ? "DevHost: crash: the plug-in let a C++ exception out of request 5\n" : "",
                is64 ? "" : "DevHost: the plug-in or DevHost gave up (abort)\n");
}

TEST(Crash, AnAbortIsOne) {
    ExpectCrash({L"--eval", L"(abort)"}, "DevHost: the plug-in or DevHost gave up (abort)\n");
}

}  // namespace
