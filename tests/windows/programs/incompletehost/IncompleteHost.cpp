// A host that exports all but sds_alert: loads the module, sends the load request and ends with what it
// answered.
#define SDS_HOST
#include <windows.h>

#include <string>

#include "sds/sds.h"

int sds_defun(const wchar_t*, short) {
    return RTNORM;
}
int sds_undef(const wchar_t*, short) {
    return RTNORM;
}
int sds_getfuncode(void) {
    return 0;
}
sds_resbuf* sds_getargs(void) {
    return nullptr;
}
int sds_retint(int) {
    return RTNORM;
}
int sds_retnil(void) {
    return RTNORM;
}
int sds_retlist(const sds_resbuf*) {
    return RTNORM;
}
sds_resbuf* sds_buildlist(int, ...) {
    return nullptr;
}
int sds_fail(const wchar_t*) {
    return RTNORM;
}
HWND sds_getmainhwnd(void) {
    return nullptr;
}
int sds_findfile(const wchar_t*, wchar_t*, size_t) {
    return 0;
}
int sds_getvar(const wchar_t*, sds_resbuf*) {
    return 0;
}
int sds_rtos(double, int, int, wchar_t*) {
    return 0;
}
int sds_distof(const wchar_t*, int, double*) {
    return 0;
}
int sds_getpoint(const double*, const wchar_t*, double*) {
    return 0;
}
int sds_getdist(const double*, const wchar_t*, double*) {
    return 0;
}

int wmain() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring folder = program;
    folder.erase(folder.find_last_of(L'\\'));
    const HMODULE module = LoadLibraryW((folder + L"\\..\\bin\\TavrinWnd.dll").c_str());
    using EntryPoint = int (*)(unsigned, void*);
    const auto entry =
        reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(module, "icrxEntryPoint")));
    if (entry == nullptr) {
        return 1;
    }
    const int answer = entry(1, nullptr);
    entry(5, nullptr);
    entry(2, nullptr);
    return answer;
}
