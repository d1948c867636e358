// A call of the built module beside a bare dialog of the same resource with the same picture: from the invoke
// request until everything is painted, and from OK until the result is there.
#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "benchmarks/BenchTable.h"
#include "benchmarks/windows/BareDialog.h"
#include "benchmarks/windows/MemoryFolder.h"
#include "benchmarks/windows/PaintedSentinel.h"
#include "res/resource.h"
#include "sds/HostBinding.h"
#include "tests/windows/module/LoadedModule.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::benchmarks;

namespace {

constexpr int kRounds = 31;

double Nanoseconds() {
    LARGE_INTEGER frequency, now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) * (1e9 / static_cast<double>(frequency.QuadPart));
}

struct Times {
    std::vector<double> opening;
    std::vector<double> closing;
};

void HandleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageW(&message);
    }
}

// Times one dialog that `show` opens and that ends when it is confirmed.
void Time(CPaintedSentinel& sentinel, Times& times, const std::function<void()>& show) {
    HandleMessages();
    double painted = 0;
    sentinel.Expect([&] {
        painted = Nanoseconds();
        PostMessageW(GetLastActivePopup(sentinel.Window()), WM_COMMAND, IDOK, 0);
    });
    const double begin = Nanoseconds();
    show();
    const double end = Nanoseconds();
    times.opening.push_back(painted - begin);
    times.closing.push_back(end - painted);
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

// `rewrite`, if any, does to the files what any program must do that leaves values in them.
void Measure(const char* name, CPaintedSentinel& sentinel, const std::function<void()>& prepare,
             const std::function<void()>& ours, const std::function<void()>& bare,
             const std::function<void()>& rewrite) {
    Times our, their, theirWithFiles;
    for (int round = 0; round <= kRounds; ++round) {
        Times warmUp;
        prepare();
        Time(sentinel, round > 0 ? our : warmUp, ours);
        Time(sentinel, round > 0 ? their : warmUp, bare);
        if (rewrite) {
            Time(sentinel, round > 0 ? theirWithFiles : warmUp, [&] {
                bare();
                rewrite();
            });
        }
    }
    PrintRow({"call", "invoke until painted", name, Median(our.opening), "ns", "bare dialog",
              Median(their.opening), 1.25});
    PrintRow({"call", "OK until result", name, Median(our.closing), "ns", "bare dialog",
              Median(their.closing), 1.25});
    if (rewrite) {
        PrintRow({"call", "OK until result", name, Median(our.closing), "ns", "bare dialog and its files",
                  Median(theirWithFiles.closing), 1.25});
    }
}

// Reads a file's lines and writes them again with the standard library.
void Rewrite(const std::filesystem::path& path) {
    std::vector<std::string> lines;
    {
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);) {
            lines.push_back(line);
        }
    }
    std::ofstream file(path);
    for (const std::string& line : lines) {
        file << line << '\n';
    }
}

}  // namespace

int main() {
    BindHost(GetModuleHandleW(nullptr));
    const CTempFolder folder(kMemoryFolder);
    for (const wchar_t* name : {L"door.png", L"door.TXT", L"door_TMP.TXT", L"door_preview.png"}) {
        std::filesystem::copy_file(std::wstring(SAMPLES L"door/") + name, folder.Path(name));
    }
    // A host that knows where its files are: how long it searches is not the module's time.
    fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, std::size_t) {
        std::wcscpy(result, folder.Path(name).c_str());
        return FakeHost::RtNorm;
    };
    const std::string template_ = folder.Read(L"door.TXT");
    const std::string working = folder.Read(L"door_TMP.TXT");
    CPaintedSentinel sentinel;
    fakeHost.mainWindow = sentinel.Window();

    const CLoadedModule module;
    const HMODULE resources = GetModuleHandleW(L"TavrinWnd.dll");
    CArguments item, preview;
    item.String(L"door").Real(1);
    preview.String(L"door_preview");
    const auto call = [&](int code, CArguments& arguments) {
        fakeHost.arguments = arguments.List();
        module.Invoke(code);
    };
    // The files as they were before each call.
    const auto restoreFiles = [&] {
        folder.Write(L"door_TMP.TXT", working);
        folder.Write(L"door.TXT", template_);
    };
    const auto showBare = [&](int id, int pictureId, const wchar_t* picture) {
        ShowBareDialog(resources, id, pictureId, folder.Path(picture), sentinel.Window());
    };
    Measure(
        "tavrinwnd", sentinel, restoreFiles, [&] { call(0, item); },
        [&] { showBare(IDD_ITEM, IDC_ITEM_PICTURE, L"door.png"); },
        [&] {
            Rewrite(folder.Path(L"door_TMP.TXT"));
            Rewrite(folder.Path(L"door.TXT"));
        });
    Measure(
        "tavrinprevmask", sentinel, [] {}, [&] { call(2, preview); },
        [&] { showBare(IDD_PREVIEW, IDC_PREVIEW_PICTURE, L"door_preview.png"); }, {});
    return 0;
}
