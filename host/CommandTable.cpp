#include "host/CommandTable.h"

#include <iterator>

#include "host/Commands.h"
#include "sds/sds.h"

namespace tavrin::host {

namespace {

struct CommandRow {
    const wchar_t* name;  // of the LISP function
    int (*run)();         // reads the arguments, shows the dialog, sets the result; see Commands.h
};

// A row's position is the code under which the host knows the function.
constexpr CommandRow kCommandTable[] = {
    {L"tavrinwnd", RunItemDialog},
    {L"tavrinselmask", RunChoiceDialog},
    {L"tavrinprevmask", RunPreviewDialog},
};

}  // namespace

void RegisterCommands() {
    short code = 0;
    for (const CommandRow& row : kCommandTable) {
        if (sds_defun(row.name, code++) == 0) {
            return;
        }
    }
}

void UnregisterCommands() {
    short code = 0;
    for (const CommandRow& row : kCommandTable) {
        if (sds_undef(row.name, code++) == 0) {
            return;
        }
    }
}

void InvokeCommand() {
    const int code = sds_getfuncode();
    if (code < 0 || code >= static_cast<int>(std::size(kCommandTable))) {
        sds_fail(L"Invalid function code.");
        return;
    }
    kCommandTable[code].run();
}

}  // namespace tavrin::host
