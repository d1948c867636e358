// The size of the module's file and the time to load it, compared with the largest library that it imports.
#include <windows.h>

#include <filesystem>

#include "benchmarks/BenchTable.h"
#include "benchmarks/windows/Turns.h"

using namespace tavrin::benchmarks;

namespace {

void LoadAndFree(const wchar_t* library) {
    const HMODULE module = LoadLibraryW(library);
    Use(reinterpret_cast<std::size_t>(module));
    FreeLibrary(module);
}

double SizeOf(const std::filesystem::path& file) {
    std::error_code ignored;
    return static_cast<double>(std::filesystem::file_size(file, ignored)) / 1024;
}

}  // namespace

int main() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path module = std::filesystem::path(program).replace_filename(L"TavrinWnd.dll");
    wchar_t system[MAX_PATH];
    GetSystemDirectoryW(system, MAX_PATH);
    const std::filesystem::path peer = std::filesystem::path(system) / L"gdiplus.dll";

    PrintRow({"module", "size of TavrinWnd.dll", "", SizeOf(module), "KB", "gdiplus.dll", SizeOf(peer), 0});
    const std::vector<double> times = MedianTurns(
        {{{}, [&] { LoadAndFree(module.c_str()); }}, {{}, [&] { LoadAndFree(peer.c_str()); }}}, 31);
    PrintRow({"module", "loading it and its imports", "", times[0], "ns", "gdiplus.dll", times[1], 0});
    return 0;
}
