// Each allocation of a call fails in turn, in a module that was just loaded: the host gets exactly one
// result, the user gets a message, a file is either complete or reported as incomplete, nothing leaks, and
// the next call works.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/windows/module/CommandDriver.h"
#include "tests/windows/module/LoadedModule.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

namespace {

const std::string item =
    "free\r\nTitle\r\nVAR\r\n$1 = \"<<1501>>\"D 900\r\n$2 = \"<<1502>>\"I 2\r\nEND_VAR\r\n";
const std::string assigned = "free\r\nTitle\r\nVAR\r\n#1 = 900\r\n$2 = 2\r\nEND_VAR\r\n";
const std::string updated =
    "free\r\nTitle\r\nVAR\r\n$1 = \"<<1501>>\"D900\r\n$2 = \"<<1502>>\"I2\r\nEND_VAR\r\n";

// What a call gave.
struct Outcome {
    std::vector<std::string> results;
    std::vector<std::wstring> messages;
    size_t allocations = 0;
    std::string workingFile;
    std::string templateFile;
};

class MemoryFaults : public testing::Test {
protected:
    void SetUp() override {
        OfferTextModule();
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
        for (const wchar_t* picture : {L"item.png", L"a_t.png", L"b_t.png"}) {
            m_folder.Write(picture, BitmapFile(2, 2, std::vector<unsigned>(4, 0x3060C0)));
        }
    }

    // Calls the function whose `failing`-th allocation fails; 0 for none.
    Outcome Call(const CLoadedModule& module, int code, CArguments& arguments, size_t failing) {
        m_folder.Write(L"item_TMP.TXT", item);
        m_folder.Write(L"item.TXT", item);
        fakeHost.results.clear();
        fakeHost.arguments = arguments.List();
        CCommandDriver driver(code == 2 ? [](HWND dialog) { PressKey(dialog, VK_RETURN); }
                                        : std::function<void(HWND)>());
        const size_t before = m_heap.allocations();
        m_heap.failAfter(failing);
        EXPECT_EQ(module.Invoke(code), 0);
        m_heap.failAfter(0);
        return {fakeHost.results, driver.messages, m_heap.allocations() - before,
                m_folder.Read(L"item_TMP.TXT"), m_folder.Read(L"item.TXT")};
    }

    // Lets each allocation of a call fail, one call each. `check` judges the outcome; the call that no longer
    // reaches its failing allocation must be a good one.
    void FailEachAllocation(int code, CArguments& arguments, const std::string& goodResult,
                            const std::function<void(const Outcome&)>& check) {
        const auto callInFreshModule = [&](size_t failing) {
            const CLoadedModule module;
            const Outcome outcome = Call(module, code, arguments, failing);
            if (failing % 16 == 0) {
                EXPECT_EQ(Call(module, code, arguments, 0).results, std::vector<std::string>{goodResult});
            }
            return outcome;
        };
        callInFreshModule(0);
        int gdiObjects = GdiObjectCount();
        const int windows = WindowCount();
        for (size_t failing = 1;; ++failing) {
            SCOPED_TRACE(failing);
            const Outcome outcome = callInFreshModule(failing);
            ASSERT_EQ(m_heap.liveBlocks(), 0U);
            // The system makes some objects for the first box or the first nested paint and keeps them: what
            // comes about again is the module's.
            if (GdiObjectCount() > gdiObjects) {
                gdiObjects = GdiObjectCount();
                callInFreshModule(failing);
                ASSERT_LE(GdiObjectCount(), gdiObjects);
            }
            if (outcome.allocations < failing) {
                EXPECT_EQ(outcome.results, std::vector<std::string>{goodResult});
                EXPECT_TRUE(outcome.messages.empty());
                EXPECT_GT(failing, 10U);
                break;
            }
            ASSERT_EQ(outcome.results.size(), 1U);
            if (outcome.results[0] != "nil") {
                EXPECT_EQ(outcome.results[0], goodResult);
            }
            check(outcome);
        }
        EXPECT_EQ(WindowCount(), windows);
    }

    CTempFolder m_folder;
    ModuleHeap m_heap;
};

bool IsReported(const Outcome& outcome, const wchar_t* text) {
    return std::find(outcome.messages.begin(), outcome.messages.end(), text) != outcome.messages.end();
}

// A file is either unchanged or completely new. A new one may be cut short, which is reported.
void ExpectWhole(const std::string& now, const std::string& rewritten, const Outcome& outcome) {
    if (outcome.results[0] == "nil") {
        EXPECT_EQ(now, item);
    } else if (now == item) {
        EXPECT_TRUE(IsReported(outcome, L"Error - unable to open file") ||
                    IsReported(outcome, L"Error - unable to write file"));
    } else if (IsReported(outcome, L"Error - unable to write file")) {
        EXPECT_EQ(now, rewritten.substr(0, now.size()));
    } else {
        EXPECT_EQ(now, rewritten);
    }
}

TEST_F(MemoryFaults, TheItemDialogWritesWholeFilesOrReportsIt) {
    CArguments arguments;
    arguments.String(L"item").Real(1).Short(0);
    FailEachAllocation(0, arguments, "0", [](const Outcome& outcome) {
        EXPECT_FALSE(outcome.messages.empty());
        ExpectWhole(outcome.workingFile, assigned, outcome);
        ExpectWhole(outcome.templateFile, updated, outcome);
    });
}

TEST_F(MemoryFaults, TheChoiceAnswersTheChosenNameOrNil) {
    CArguments arguments;
    arguments.String(L"Replace").Short(0).String(L"a").String(L"b");
    FailEachAllocation(1, arguments, "(100 \"a\")", [](const Outcome&) {});
}

TEST_F(MemoryFaults, ThePreviewAnswersZeroOrNil) {
    CArguments arguments;
    arguments.String(L"item");
    FailEachAllocation(2, arguments, "0", [](const Outcome&) {});
}

// The height of the grid's rows.
int RowHeightOf(HWND dialog) {
    const HDC dc = GetDC(dialog);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)));
    SIZE size = {};
    GetTextExtentPoint32W(dc, L"Gg", 2, &size);
    SelectObject(dc, before);
    ReleaseDC(dialog, dc);
    return size.cy + 4;
}

// Clicks on the value of a row, types and presses Enter; nothing where no edit opens.
void TypeInRow(HWND dialog, int row, const wchar_t* text) {
    const HWND grid = GetDlgItem(dialog, 100);
    const LPARAM value = MAKELPARAM(230, row * RowHeightOf(dialog) + 5);
    SendMessageW(grid, WM_LBUTTONDOWN, MK_LBUTTON, value);
    SendMessageW(grid, WM_LBUTTONUP, 0, value);
    if (const HWND edit = FindWindowExW(grid, nullptr, L"Edit", nullptr)) {
        SetWindowTextW(edit, text);
        SendMessageW(edit, WM_CHAR, VK_RETURN, 1);
    }
}

// Allocations fail while the user edits and presses OK.
TEST_F(MemoryFaults, TypedTextIsWrittenOrItsLossIsReported) {
    CArguments arguments;
    arguments.String(L"item").Real(1).Short(0);
    fakeHost.arguments = arguments.List();
    fakeHost.distanceText = [](double value, int, int) { return std::to_wstring(static_cast<int>(value)); };
    const std::string allAssigned = "free\r\nTitle\r\nVAR\r\n#1 = 33\r\n$2 = 7\r\nEND_VAR\r\n";
    for (size_t failing = 0;; ++failing) {
        SCOPED_TRACE(failing);
        m_folder.Write(L"item_TMP.TXT", item);
        m_folder.Write(L"item.TXT", item);
        fakeHost.results.clear();
        size_t before = 0;
        {
            const CLoadedModule module;
            CCommandDriver driver([&](HWND dialog) {
                before = m_heap.allocations();
                m_heap.failAfter(failing);
                TypeInRow(dialog, 0, L"33");
                TypeInRow(dialog, 1, L"7");
                PressButton(dialog, IDOK);
            });
            EXPECT_EQ(module.Invoke(0), 0);
            m_heap.failAfter(0);
            ASSERT_EQ(fakeHost.results.size(), 1U);
            const std::string working = m_folder.Read(L"item_TMP.TXT");
            if (fakeHost.results[0] == "nil") {
                EXPECT_EQ(working, item);
                EXPECT_EQ(m_folder.Read(L"item.TXT"), item);
            }
            EXPECT_TRUE(working == allAssigned || !driver.messages.empty()) << working;
            if (failing == 0) {
                EXPECT_EQ(working, allAssigned);
            }
        }
        ASSERT_EQ(m_heap.liveBlocks(), 0U);
        if (failing != 0 && m_heap.allocations() - before < failing) {
            EXPECT_GT(failing, 10U);
            break;
        }
    }
}

}  // namespace
