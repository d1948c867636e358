// A host for tests: the test program exports the functions of the host interface, so the module's code
// binds to them exactly as it does to a real host. Tests fill `fakeHost` before and read it afterwards.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct sds_resbuf;

struct FakeHost {
    // The calls that it received.
    std::vector<std::pair<std::wstring, int>> defined;    // sds_defun
    std::vector<std::pair<std::wstring, int>> undefined;  // sds_undef
    std::vector<std::wstring> failures;                   // sds_fail
    std::vector<std::wstring> alerts;                     // sds_alert
    std::vector<std::wstring> prompts;                    // sds_getpoint, sds_getdist
    std::vector<std::string> bases;                       // of these prompts: "none" or a point, "1 2 3"
    std::vector<std::string> results;                     // "0", "nil", "(100 \"A\")" per result call
    std::vector<std::wstring> searched;                   // sds_findfile

    // What its functions return.
    int defunStatus = RtNorm;
    int functionCode = 0;
    sds_resbuf* arguments = nullptr;
    HWND mainWindow = nullptr;
    std::vector<std::wstring> searchFolders;  // each with its trailing backslash
    std::function<int(const wchar_t* name, wchar_t* result, size_t capacity)> findFile;  // instead of folders
    short linearUnits = 2;
    int precision = 4;
    int pointStatus = RtNorm;
    int distanceStatus = RtNorm;
    double distance = 0;               // the point is 1, 2, 3
    std::function<void()> duringPick;  // called inside sds_getpoint
    std::string failing;               // the function ("sds_rtos") that records its arguments and fails

    // Formats and reads distances as a real host does, instead of as "U2:900.0000". No result: the call
    // fails.
    std::function<std::optional<std::wstring>(double value, int units, int precision)> distanceText;
    std::function<std::optional<double>(const std::wstring& text)> distanceOf;

    static constexpr int RtNorm = 5100;
};

extern FakeHost fakeHost;
