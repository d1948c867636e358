// The entry point and the table of commands. Environment variables make the plug-in misbehave in requests
// other than calls: TESTPLUGIN_LOAD is "refuse", "fail", "crash" or "throw", TESTPLUGIN_UNLOAD "refuse" or
// "keep" (the functions stay defined).
#include "tests/windows/programs/testplugin/TestPlugin.h"

#include <iterator>
#include <string>

namespace tests {

namespace {

const Command kCommands[] = {
    {L"echo", Echo},
    {L"give-int", GiveInt},
    {L"give-nil", GiveNil},
    {L"give-nothing", GiveNothing},
    {L"give-list", GiveList},
    {L"give-wrong-lists", GiveWrongLists},
    {L"fail-with", FailWith},
    {L"alert-with", AlertWith},
    {L"find-file", FindFile},
    {L"read-variable", ReadVariable},
    {L"format-length", FormatLength},
    {L"read-length", ReadLength},
    {L"pick-point", PickPoint},
    {L"pick-distance", PickDistance},
    {L"pick-twice-at-once", PickTwiceAtOnce},
    {L"pick-while-disabled", PickWhileDisabled},
    {L"pick-behind-dialog", PickBehindDialog},
    {L"use-other-thread", UseOtherThread},
    {L"use-bad-pointers", UseBadPointers},
    {L"define-odd-names", DefineOddNames},
    {L"answer-seven", nullptr},  // the request itself is answered with 7
    {L"leak", Leak},
    {L"churn", Churn},
    {L"write-behind", WriteBehind},
    {L"write-far-behind", WriteFarBehind},
    {L"read-behind", ReadBehind},
    {L"write-in-front", WriteInFront},
    {L"write-after-delete", WriteAfterDelete},
    {L"delete-twice", DeleteTwice},
    {L"delete-foreign", DeleteForeign},
    {L"delete-with-the-other", DeleteWithTheOther},
    {L"fail-one-allocation", FailOneAllocation},
    {L"crash", Crash},
    {L"crash-in-window", CrashInWindow},
    {L"crash-in-runtime", CrashInRuntime},
    {L"throw-out", ThrowOut},
    {L"abort", Abort},
};

std::wstring Wish(const wchar_t* variable) {
    wchar_t text[20] = L"";
    GetEnvironmentVariableW(variable, text, 20);
    return text;
}

int Load() {
    const std::wstring wish = Wish(L"TESTPLUGIN_LOAD");
    short code = 0;
    for (const Command& command : kCommands) {
        HOST(sds_defun)(command.name, code++);
    }
    if (wish == L"fail") {
        HOST(sds_fail)(L"not today");
    }
    if (wish == L"crash") {
        Crash();
    }
    if (wish == L"throw") {
        ThrowOut();
    }
    return wish == L"refuse" ? 1 : 0;
}

int Unload() {
    const std::wstring wish = Wish(L"TESTPLUGIN_UNLOAD");
    short code = 0;
    for (const Command& command : kCommands) {
        if (wish != L"keep" || code > 1) {
            HOST(sds_undef)(command.name, code);
        }
        ++code;
    }
    return wish == L"refuse" ? 1 : 0;
}

int Invoke() {
    const int code = HOST(sds_getfuncode)();
    if (code < 0 || code >= static_cast<int>(std::size(kCommands))) {
        HOST(sds_fail)(L"unknown code");
        return 0;
    }
    if (kCommands[code].run == nullptr) {
        return 7;
    }
    kCommands[code].run();
    return 0;
}

const sds_resbuf* Argument(int index) {
    const sds_resbuf* argument = HOST(sds_getargs)();
    for (; argument != nullptr && index > 0; --index) {
        argument = argument->next;
    }
    return argument;
}

}  // namespace

FARPROC FindInHost(const char* function) {
    return GetProcAddress(GetModuleHandleW(nullptr), function);
}

int ShortArgument(int index, int otherwise) {
    const sds_resbuf* argument = Argument(index);
    return argument != nullptr && argument->type == RTSHORT ? argument->value.integer : otherwise;
}

double RealArgument(int index, double otherwise) {
    const sds_resbuf* argument = Argument(index);
    return argument != nullptr && argument->type == RTREAL ? argument->value.real : otherwise;
}

const wchar_t* TextArgument(int index) {
    const sds_resbuf* argument = Argument(index);
    return argument != nullptr && argument->type == RTSTR ? argument->value.string : nullptr;
}

extern "C" int icrxEntryPoint(unsigned request, void*) {
    switch (request) {
        case SDS_LOAD:
            return Load();
        case SDS_UNLOAD:
            return Unload();
        case SDS_INVOKE:
            return Invoke();
        default:
            return request > SDS_LAST_REQUEST ? 3 : 0;
    }
}

}  // namespace tests
