#include "devhost/app/CrashReport.h"

#include <csignal>
#include <cstdio>

#include "devhost/app/ExitStatus.h"
#include "devhost/fault/CodeAddress.h"

namespace devhost {

namespace {

constexpr ULONG kReserveForStackOverflow = 64 * 1024;  // bytes of stack that the report may use
constexpr int kMaxCallers = 16;

HMODULE plugInModule = nullptr;

[[noreturn]] void EndProcess() {
    TerminateProcess(GetCurrentProcess(), kExitCrashed);
    for (;;) {
        Sleep(INFINITE);
    }
}

void PrintCallers([[maybe_unused]] const CONTEXT& faulted) {
#ifdef _WIN64
    CONTEXT context = faulted;
    for (int i = 0; i < kMaxCallers; ++i) {
        DWORD64 base = 0;
        PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function == nullptr) {
            return;
        }
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame,
                         nullptr);
        if (context.Rip == 0) {
            return;
        }
        char line[200];
        std::snprintf(line, sizeof line, "  called from %s\n",
                      CodeAddress(reinterpret_cast<const void*>(context.Rip)).text);
        WriteToStandardError(line);
    }
#endif
}

void Report(const EXCEPTION_POINTERS& exception) {
    const EXCEPTION_RECORD& record = *exception.ExceptionRecord;
    char line[300];
    const int length = std::snprintf(line, sizeof line, "DevHost: crash in %s, exception %08lx",
                                     CodeAddress(record.ExceptionAddress).text, record.ExceptionCode);
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.NumberParameters >= 2) {
        std::snprintf(line + length, sizeof line - static_cast<std::size_t>(length), " at address %p",
                      reinterpret_cast<const void*>(record.ExceptionInformation[1]));
    }
    WriteToStandardError(line);
    WriteToStandardError("\n");
    PrintCallers(*exception.ContextRecord);
}

bool IsModule(HMODULE module, const wchar_t* name) {
    return module == GetModuleHandleW(name);
}

// Whether a fault at this address is always a crash. Some system libraries catch faults of their own; the C
// runtimes and our modules do not. The system ends a fault below a window procedure where it called the
// procedure, so it never becomes an unhandled exception.
bool IsOurs(const void* address) {
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<const wchar_t*>(address), &module)) {
        return true;  // a jump into nowhere
    }
    return module == plugInModule || IsModule(module, nullptr) || IsModule(module, L"TD_Alloc.dll") ||
           IsModule(module, L"msvcrt.dll") || IsModule(module, L"ucrtbase.dll");
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
    // Errors of the system; C++ exceptions and debugger notifications have other codes.
    constexpr DWORD kSystemError = 0xC;
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode >> 28 != kSystemError || !IsOurs(record.ExceptionAddress)) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    Report(*exception);
    EndProcess();
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* exception) {
    Report(*exception);
    EndProcess();
}

void OnAbort(int) {
    WriteToStandardError("DevHost: the plug-in or DevHost gave up (abort)\n");
    EndProcess();
}

}  // namespace

void InstallCrashReport() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    ULONG reserve = kReserveForStackOverflow;
    SetThreadStackGuarantee(&reserve);
    // After the handler of the checking allocator, which knows more about faults in its blocks.
    AddVectoredExceptionHandler(FALSE, OnException);
    SetUnhandledExceptionFilter(OnUnhandledException);
    std::signal(SIGABRT, OnAbort);
}

void WatchPlugIn(HMODULE plugIn) {
    plugInModule = plugIn;
}

void ExitOnException(unsigned request) {
    char line[100];
    std::snprintf(line, sizeof line, "DevHost: crash: the plug-in let a C++ exception out of request %u\n",
                  request);
    WriteToStandardError(line);
    EndProcess();
}

}  // namespace devhost
