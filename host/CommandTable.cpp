#include "host/CommandTable.h"

#include "host/Commands.h"
#include "sds/sds.h"

namespace tavrin::host {

namespace {

constexpr CommandRow kCommandTable[] = {
    {L"tavrinwnd", RunItemDialog},
    {L"tavrinselmask", RunChoiceDialog},
    {L"tavrinprevmask", RunPreviewDialog},
};

}  // namespace

std::span<const CommandRow> CommandTable() {
    return kCommandTable;
}

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
