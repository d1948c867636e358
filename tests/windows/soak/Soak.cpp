// Calls the three functions of the built module for so many seconds, with random arguments, files and input,
// and compares every file that is written with what the code without windows makes of the same item. Half of
// the time goes to new calls; then the same calls are made again, which must leave the process with what it
// had before: what the system and the module load once is there by then.
//
//     soak [SECONDS [SEED]]
//
// Exits with status 0 when it passed, otherwise 1.
#include <windows.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "sds/HostBinding.h"
#include "tests/windows/module/LoadedModule.h"
#include "tests/windows/soak/ProcessState.h"
#include "tests/windows/soak/SoakDriver.h"
#include "tests/windows/soak/SoakItem.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

namespace {

constexpr ULONGLONG hungMilliseconds = 60000;
std::atomic<ULONGLONG> callStarted{0};

DWORD WINAPI Watch(void*) {
    for (;;) {
        Sleep(500);
        if (GetTickCount64() - callStarted > hungMilliseconds) {
            std::printf("soak: a call hangs\n");
            std::fflush(stdout);
            TerminateProcess(GetCurrentProcess(), 1);
        }
    }
}

LONG WINAPI EndCrashed(EXCEPTION_POINTERS* exception) {
    std::printf("soak: crashed with exception %08lx\n", exception->ExceptionRecord->ExceptionCode);
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 1);
    return EXCEPTION_EXECUTE_HANDLER;
}

std::wstring TextOfModule(unsigned id) {
    static const HMODULE library = LoadLibraryW(L"TavrinRes.dll");
    wchar_t text[256];
    return {text, static_cast<std::size_t>(LoadStringW(library, id, text, 256))};
}

class CSoak {
public:
    CSoak(const CLoadedModule& module, unsigned seed)
        : m_module(module), m_choices(seed), m_driver(m_choices) {
        fakeHost.searchFolders = {m_folder.Path(L"")};
        for (const wchar_t* picture : {L"item.png", L"a_t.png", L"b_t.png", L"c_t_3d.png", L"empty.png"}) {
            m_folder.Write(picture, BitmapFile(8, 8, std::vector<unsigned>(64, 0x3060C0)));
        }
    }

    void CallAny() {
        fakeHost.pointStatus = m_choices.OneIn(4) ? 0 : FakeHost::RtNorm;
        fakeHost.distanceStatus = m_choices.OneIn(4) ? 0 : FakeHost::RtNorm;
        fakeHost.distance = m_choices.Below(5000) / 4.0;
        switch (m_choices.Below(6)) {
            case 0:
                CallChoice();
                break;
            case 1:
                CallPreview();
                break;
            default:
                CallItem();
        }
    }

    // Makes the choices of the start once more.
    void ChooseAgain(unsigned seed) { m_choices = CChoices(seed); }

    int Calls() const { return m_calls[0] + m_calls[1] + m_calls[2]; }
    int Failures() const { return m_failures; }

    void PrintSummary() const {
        std::printf("soak: %d calls of tavrinwnd, %d of tavrinselmask, %d of tavrinprevmask\n", m_calls[0],
                    m_calls[1], m_calls[2]);
        std::printf("soak: %d values typed, %lld random events, %lld message boxes\n", m_typed,
                    m_driver.Events(), m_driver.Boxes());
        std::printf("soak: %d pairs of files compared, %d of them rewritten; %d differences\n", m_calls[0],
                    m_rewritten, m_failures);
    }

private:
    std::string Invoke(int code, CArguments& arguments) {
        fakeHost.arguments = arguments.List();
        fakeHost.results.clear();
        callStarted = GetTickCount64();
        m_module.Invoke(code);
        ++m_calls[static_cast<std::size_t>(code)];
        // The host's records are not the module's memory.
        fakeHost.searched.clear();
        fakeHost.prompts.clear();
        fakeHost.alerts.clear();
        if (fakeHost.results.size() != 1) {
            Fail("a call set " + std::to_string(fakeHost.results.size()) + " results");
        }
        return fakeHost.results.empty() ? "" : fakeHost.results.front();
    }

    void CallItem() {
        CSoakItem item(m_choices, TextOfModule);
        m_folder.Write(L"item_TMP.TXT", item.WorkingFile());
        m_folder.Write(L"item.TXT", item.TemplateFile());
        const bool wild = m_choices.OneIn(2);
        std::deque<CSoakDriver::Step> steps;
        if (wild) {
            PlanInput(steps);
        } else {
            PlanTyping(item, steps);
        }
        m_driver.Plan(std::move(steps));
        CArguments arguments;
        arguments.String(L"item").Real(item.Scale()).Short(static_cast<short>(item.Mode()));
        Check(item, Invoke(0, arguments), wild);
    }

    void PlanTyping(CSoakItem& item, std::deque<CSoakDriver::Step>& steps) {
        constexpr int rowsInSight = 12;
        for (int typing = m_choices.Below(4); typing > 0 && !item.EditableRows().empty(); --typing) {
            const CSoakItem::Row& row = item.EditableRows()[static_cast<std::size_t>(
                m_choices.Below(static_cast<int>(item.EditableRows().size())))];
            if (row.row >= rowsInSight) {
                continue;
            }
            const int quarters = m_choices.Below(40000) - 2000;
            const double number = row.type == L'I' ? quarters : quarters / 4.0;
            wchar_t text[32];
            std::swprintf(text, 32, L"%.10g", number);
            CSoakDriver::AddTyping(steps, row.row, text);
            item.Type(row.lineIndex, number);
            ++m_typed;
        }
    }

    void PlanInput(std::deque<CSoakDriver::Step>& steps) {
        for (int input = m_choices.Below(12); input > 0; --input) {
            steps.push_back(m_driver.RandomInput());
        }
    }

    void Check(CSoakItem& item, const std::string& result, bool wild) {
        const std::string working = m_folder.Read(L"item_TMP.TXT");
        const std::string defaults = m_folder.Read(L"item.TXT");
        if (result == "nil") {
            Compare("working file after nil", working, item.WorkingFile());
            Compare("template after nil", defaults, item.TemplateFile());
            return;
        }
        ++m_rewritten;
        if (wild) {
            const std::string problem = item.TakeValuesFrom(working);
            if (!problem.empty()) {
                Fail(problem + " in\n" + working);
            }
        }
        Compare("working file", working, item.ExpectedWorkingFile());
        Compare("template", defaults, item.ExpectedTemplateFile());
    }

    void CallChoice() {
        CArguments arguments;
        arguments.String(L"Replace").Short(static_cast<short>(m_choices.Below(2)));
        for (int name = m_choices.Below(8); name > 0; --name) {
            const wchar_t* const names[] = {L"a", L"b", L"c", L"missing"};
            arguments.String(names[m_choices.Below(4)]);
        }
        std::deque<CSoakDriver::Step> steps;
        PlanInput(steps);
        m_driver.Plan(std::move(steps));
        const std::string result = Invoke(1, arguments);
        if (result != "nil" && result.rfind("(100 \"", 0) != 0 && result.rfind("(1000 \"", 0) != 0) {
            Fail("tavrinselmask answered " + result);
        }
    }

    void CallPreview() {
        CArguments arguments;
        arguments.String(m_choices.OneIn(4) ? L"missing" : L"item");
        std::deque<CSoakDriver::Step> steps;
        PlanInput(steps);
        m_driver.Plan(std::move(steps));
        const std::string result = Invoke(2, arguments);
        if (result != "nil" && result != "0") {
            Fail("tavrinprevmask answered " + result);
        }
    }

    void Compare(const char* what, const std::string& now, const std::string& expected) {
        if (now != expected) {
            Fail(std::string(what) + ":\n" + now + "--- expected:\n" + expected);
        }
    }

    void Fail(const std::string& what) {
        ++m_failures;
        std::printf("soak: call %d: %s\n", Calls(), what.c_str());
        std::fflush(stdout);
    }

    const CLoadedModule& m_module;
    CChoices m_choices;
    CSoakDriver m_driver;
    CTempFolder m_folder;
    std::array<int, 3> m_calls = {};
    int m_typed = 0;
    int m_rewritten = 0;
    int m_failures = 0;
};

// Prints a count before and after; true when it has grown.
bool PrintGrowth(const char* what, long long before, long long after) {
    const bool grown = after > before;
    std::printf("soak: %-12s %6lld before, %6lld after%s\n", what, before, after, grown ? "  GROWN" : "");
    return grown;
}

// Fewer calls in a short run on a busy machine would leave out what some calls need.
constexpr int kLeastCalls = 20;

}  // namespace

int main(int argc, char** argv) {
    SetUnhandledExceptionFilter(EndCrashed);
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 60;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10))
                                   : static_cast<unsigned>(GetTickCount64());
    std::printf("soak: %d seconds, seed %u\n", seconds, seed);
    std::fflush(stdout);
    BindHost(GetModuleHandleW(nullptr));
    OfferTextModule();
    TextOfModule(1501);
    const ModuleHeap heap;
    callStarted = GetTickCount64();
    CloseHandle(CreateThread(nullptr, 0, Watch, nullptr, 0, nullptr));

    bool grown = false;
    int failures = 0;
    {
        const CLoadedModule module;
        CSoak soak(module, seed);
        const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 500;
        while (soak.Calls() < kLeastCalls || GetTickCount64() < end) {
            soak.CallAny();
        }
        const int calls = soak.Calls();
        const ProcessState before = ProcessState::Now(heap.liveBlocks());
        soak.ChooseAgain(seed);
        while (soak.Calls() < 2 * calls) {
            soak.CallAny();
        }
        const ProcessState after = ProcessState::Now(heap.liveBlocks());
        soak.PrintSummary();
        grown |= PrintGrowth("heap blocks", static_cast<long long>(before.heapBlocks),
                             static_cast<long long>(after.heapBlocks));
        grown |= PrintGrowth("GDI objects", before.gdiObjects, after.gdiObjects);
        grown |= PrintGrowth("windows", before.windows, after.windows);
        grown |= PrintGrowth("threads", before.threads, after.threads);
        grown |= PrintGrowth("handles", before.handles, after.handles);
        failures = soak.Failures();
    }
    grown |= PrintGrowth("blocks left", 0, static_cast<long long>(heap.liveBlocks()));
    const bool passed = !grown && failures == 0;
    std::printf(passed ? "soak: passed\n" : "soak: FAILED; repeat with: soak %d %u\n", seconds, seed);
    return passed ? 0 : 1;
}
