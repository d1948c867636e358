// A host whose functions fail, each in turn: the module's results, messages and files.
#include <gtest/gtest.h>

#include <map>

#include "tests/windows/module/CommandDriver.h"
#include "tests/windows/module/LoadedModule.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

namespace {

constexpr const char* functions[] = {
    "sds_defun",   "sds_undef",  "sds_getfuncode", "sds_getargs",     "sds_retint",   "sds_retnil",
    "sds_retlist", "sds_fail",   "sds_alert",      "sds_getmainhwnd", "sds_findfile", "sds_getvar",
    "sds_rtos",    "sds_distof", "sds_getpoint",   "sds_getdist",     "sds_buildlist"};

constexpr const char* item = "free\nTitle\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR\n";
constexpr const char* assigned = "free\r\nTitle\r\nVAR\r\n#1 = 900\r\nEND_VAR\r\n";

using Results = std::vector<std::string>;
using Texts = std::vector<std::wstring>;

class HostErrors : public testing::Test {
protected:
    void SetUp() override {
        OfferTextModule();
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
        for (const wchar_t* picture : {L"item.png", L"a_t.png"}) {
            m_folder.Write(picture, BitmapFile(2, 2, std::vector<unsigned>(4, 0x3060C0)));
        }
    }

    // What a call with this host gives LISP; m_messages holds what the user saw.
    Results Call(const CLoadedModule& module, int code, CArguments& arguments) {
        m_folder.Write(L"item_TMP.TXT", item);
        m_folder.Write(L"item.TXT", item);
        fakeHost.results.clear();
        fakeHost.failures.clear();
        fakeHost.alerts.clear();
        fakeHost.arguments = arguments.List();
        CCommandDriver driver(code == 2 ? [](HWND dialog) { PressKey(dialog, VK_RETURN); }
                                        : std::function<void(HWND)>());
        EXPECT_EQ(module.Invoke(code), 0);
        m_messages = driver.messages;
        return fakeHost.results;
    }

    // Lets each function fail during a whole life of the module. The results are `good` but for the functions
    // in `others`; the call after each failure is a good one.
    void FailEachFunction(int code, CArguments& arguments, const Results& good,
                          const std::map<std::string, Results>& others,
                          const std::function<void(const std::string& failing)>& check) {
        for (const std::string failing : functions) {
            SCOPED_TRACE(failing);
            {
                fakeHost.failing = failing;
                const CLoadedModule module;
                const auto other = others.find(failing);
                EXPECT_EQ(Call(module, code, arguments), other != others.end() ? other->second : good);
                EXPECT_EQ(fakeHost.failures,
                          failing == "sds_getfuncode" ? Texts{L"Invalid function code."} : Texts{});
                check(failing);
                fakeHost.failing.clear();
                EXPECT_EQ(Call(module, code, arguments), good);
            }
            EXPECT_EQ(m_heap.liveBlocks(), 0U);
        }
    }

    CTempFolder m_folder;
    ModuleHeap m_heap;
    Texts m_messages;
};

TEST_F(HostErrors, TheItemDialogNeedsItsFilesAndArgumentsAlone) {
    CArguments arguments;
    arguments.String(L"item");
    const std::map<std::string, Results> others = {
        {"sds_getfuncode", {}}, {"sds_getargs", {}}, {"sds_findfile", {"nil"}}};
    FailEachFunction(0, arguments, {"0"}, others, [&](const std::string& failing) {
        EXPECT_EQ(m_messages, failing == "sds_findfile" ? Texts{L"File not found 'item_TMP.TXT'!"} : Texts{});
        EXPECT_EQ(m_folder.Read(L"item_TMP.TXT"), others.contains(failing) ? item : assigned);
    });
}

TEST_F(HostErrors, TheChoiceAnswersNilWithoutAListOrSlides) {
    CArguments arguments;
    arguments.String(L"Replace").Short(0).String(L"a");
    FailEachFunction(
        1, arguments, {"(100 \"a\")"},
        {{"sds_getfuncode", {}}, {"sds_getargs", {}}, {"sds_findfile", {"nil"}}, {"sds_buildlist", {"nil"}}},
        [&](const std::string& failing) {
            EXPECT_EQ(fakeHost.alerts.size(), failing == "sds_findfile" ? 1U : 0U);
            EXPECT_TRUE(m_messages.empty());
        });
}

TEST_F(HostErrors, AnAlertThatFailsStillAnswersNil) {
    CArguments arguments;
    arguments.String(L"Replace").Short(0).String(L"missing");
    fakeHost.failing = "sds_alert";
    const CLoadedModule module;
    EXPECT_EQ(Call(module, 1, arguments), Results{"nil"});
    EXPECT_EQ(fakeHost.alerts.size(), 1U);
}

TEST_F(HostErrors, ThePreviewNeedsItsArgumentAlone) {
    CArguments arguments;
    arguments.String(L"item");
    FailEachFunction(2, arguments, {"0"}, {{"sds_getfuncode", {}}, {"sds_getargs", {}}},
                     [&](const std::string&) { EXPECT_TRUE(m_messages.empty()); });
}

}  // namespace
