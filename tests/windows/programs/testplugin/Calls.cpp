// Commands for the functions of the interface that need no user input.
#include <algorithm>
#include <climits>
#include <cmath>
#include <thread>

#include "tests/windows/programs/testplugin/TestPlugin.h"

namespace tests {

namespace {

constexpr std::size_t kRoom = 300;
constexpr wchar_t kUntouched = L'#';

// A buffer that shows how far it was written.
struct Buffer {
    Buffer() { std::fill_n(text, kRoom, kUntouched); }
    // The index after the last character that was written.
    int Written() const {
        std::size_t end = kRoom;
        while (end > 0 && text[end - 1] == kUntouched) {
            --end;
        }
        return static_cast<int>(end);
    }
    wchar_t text[kRoom];
};

}  // namespace

void Echo() {
    HOST(sds_retlist)(HOST(sds_getargs)());
}

void GiveInt() {
    HOST(sds_retint)(ShortArgument(0) < 0 ? INT_MIN : INT_MAX);
}

void GiveNil() {
    HOST(sds_retint)(1);
    HOST(sds_retnil)();  // the later one counts
}

void GiveNothing() {}

void GiveList() {
    HOST(sds_retlist)
    (HOST(sds_buildlist)(RTSHORT, 100, RTSTR, L"na\"me", RTREAL, 2.5, RTSHORT, -1, RTNONE));
}

// Each status of a result that is refused.
void GiveWrongLists() {
    HOST(sds_retint)(5);
    sds_resbuf unknownType = {nullptr, 5009, {}};
    sds_resbuf noText = {nullptr, RTSTR, {}};
    noText.value.string = nullptr;
    sds_resbuf circle = {nullptr, RTSHORT, {}};
    circle.next = &circle;
    int refused = 0;
    for (const sds_resbuf* list : {&unknownType, &noText, &circle}) {
        refused += HOST(sds_retlist)(list) != RTNORM;
    }
    refused += HOST(sds_buildlist)(5009, 1, RTNONE) == nullptr;
    refused += HOST(sds_buildlist)(RTSTR, static_cast<const wchar_t*>(nullptr), RTNONE) == nullptr;
    refused += HOST(sds_buildlist)(RTNONE) == nullptr;
    if (refused == 6) {
        HOST(sds_retlist)(nullptr);
    }
}

void FailWith() {
    HOST(sds_retint)(5);
    HOST(sds_fail)(TextArgument(0));
}

void AlertWith() {
    HOST(sds_retint)(HOST(sds_alert)(TextArgument(0)));
}

// (find-file NAME CAPACITY): the status, how much of the buffer was written, the text if it was.
void FindFile() {
    Buffer buffer;
    const int status =
        HOST(sds_findfile)(TextArgument(0), buffer.text, static_cast<std::size_t>(ShortArgument(1, 254)));
    HOST(sds_retlist)
    (HOST(sds_buildlist)(RTSHORT, status, RTSHORT, buffer.Written(), RTSTR,
                         status == RTNORM ? buffer.text : L"", RTNONE));
}

void ReadVariable() {
    sds_resbuf value = {};
    const int status = HOST(sds_getvar)(TextArgument(0), &value);
    HOST(sds_retlist)
    (HOST(sds_buildlist)(RTSHORT, status, RTSHORT, static_cast<int>(value.type), RTSHORT,
                         static_cast<int>(value.value.integer), RTNONE));
}

// (format-length VALUE UNITS PRECISION)
void FormatLength() {
    Buffer buffer;
    const int status = HOST(sds_rtos)(RealArgument(0), ShortArgument(1), ShortArgument(2), buffer.text);
    HOST(sds_retlist)(HOST(sds_buildlist)(RTSHORT, status, RTSTR, buffer.text, RTNONE));
}

// (read-length TEXT UNITS)
void ReadLength() {
    double value = -1;
    const int status = HOST(sds_distof)(TextArgument(0), ShortArgument(1), &value);
    HOST(sds_retlist)(HOST(sds_buildlist)(RTSHORT, status, RTREAL, value, RTNONE));
}

// How many of the functions failed on another thread than the host's.
void UseOtherThread() {
    int failed = 0;
    std::thread([&] {
        failed += HOST(sds_retint)(5) != RTNORM;
        failed += HOST(sds_getargs)() == nullptr;
        failed += HOST(sds_getfuncode)() == -1;
        failed += HOST(sds_getmainhwnd)() == nullptr;
        failed += HOST(sds_defun)(L"other", 90) == 0;
    }).join();
    HOST(sds_retint)(failed);
}

// How many of the functions failed on a null pointer or on a point that is none.
void UseBadPointers() {
    wchar_t text[kRoom];
    double number = 0;
    sds_resbuf value;
    int failed = 0;
    failed += HOST(sds_defun)(nullptr, 90) == 0;
    failed += HOST(sds_undef)(nullptr, 0) == 0;
    failed += HOST(sds_findfile)(nullptr, text, 254) != RTNORM;
    failed += HOST(sds_findfile)(L"x", nullptr, 254) != RTNORM;
    failed += HOST(sds_getvar)(nullptr, &value) != RTNORM;
    failed += HOST(sds_getvar)(L"LUNITS", nullptr) != RTNORM;
    failed += HOST(sds_rtos)(1, 2, 2, nullptr) != RTNORM;
    failed += HOST(sds_distof)(nullptr, 2, &number) != RTNORM;
    failed += HOST(sds_distof)(L"1", 2, nullptr) != RTNORM;
    failed += HOST(sds_getpoint)(nullptr, nullptr, nullptr) != RTNORM;
    failed += HOST(sds_getdist)(nullptr, nullptr, nullptr) != RTNORM;
    const double noPoint[3] = {1, std::nan(""), 0};
    failed += HOST(sds_getdist)(noPoint, nullptr, &number) != RTNORM;
    HOST(sds_retint)(failed);
}

// How many definitions and removals were refused.
void DefineOddNames() {
    int refused = 0;
    for (const wchar_t* name : {L"", L"5", L"nil", L"T", L"quote", L"a b", L"(a", L"ECHO"}) {
        refused += HOST(sds_defun)(name, 90) == 0;
    }
    refused += HOST(sds_undef)(L"echo", 1) == 0;     // another function's code
    refused += HOST(sds_undef)(L"unknown", 0) == 0;  // no function
    HOST(sds_retint)(refused);
}

}  // namespace tests
