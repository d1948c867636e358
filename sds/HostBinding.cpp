#include "sds/HostBinding.h"

#include <windows.h>

#include <cstring>

#include "sds/sds.h"

// Every function of sds.h.
#define SDS_FUNCTIONS(X) \
    X(sds_defun)         \
    X(sds_undef)         \
    X(sds_getfuncode)    \
    X(sds_getargs)       \
    X(sds_retint)        \
    X(sds_retnil)        \
    X(sds_retlist)       \
    X(sds_buildlist)     \
    X(sds_fail)          \
    X(sds_alert)         \
    X(sds_getmainhwnd)   \
    X(sds_findfile)      \
    X(sds_getvar)        \
    X(sds_rtos)          \
    X(sds_distof)        \
    X(sds_getpoint)      \
    X(sds_getdist)

// sds.h declares its functions as imported, so the compiler calls each through the pointer that an
// import table would hold under this name (x86 puts a further underscore before it). These are the
// pointers. They forward variable arguments too, which a wrapper function could not.
#ifdef _WIN64
#define IMPORT_POINTER(name) __imp_##name
#else
#define IMPORT_POINTER(name) _imp__##name
#endif

#define DEFINE_POINTER(name) FARPROC IMPORT_POINTER(name) = nullptr;
extern "C" {
SDS_FUNCTIONS(DEFINE_POINTER)
}

namespace {

struct ImportedFunction {
    const char* name;
    FARPROC* pointer;
};

#define TABLE_ROW(name) {#name, &IMPORT_POINTER(name)},
const ImportedFunction kImportedFunctions[] = {SDS_FUNCTIONS(TABLE_ROW)};

}  // namespace

std::wstring BindHost(HMODULE host) {
    std::wstring missing;
    for (const ImportedFunction& function : kImportedFunctions) {
        *function.pointer = GetProcAddress(host, function.name);
        if (*function.pointer == nullptr) {
            if (!missing.empty()) {
                missing += L'\n';
            }
            missing.append(function.name, function.name + std::strlen(function.name));
        }
    }
    return missing;
}
