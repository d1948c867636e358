#include "Commands.h"

#include <afxwin.h>

#include <exception>

#include "TavrinWndDlg.h"
#include "sds.h"

namespace {

// Runs the body of a command with the module's own resources, restored on every way out. What the body
// throws ends here with nil as LISP's result.
template <typename Body>
int RunFramed(Body body) {
    AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
    try {
        return body(CWnd::FromHandle(sds_getmainhwnd()));
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::exception&) {
    }
    sds_retnil();
    return 0;
}

bool BeginsWithString(const sds_resbuf* list) {
    return list != nullptr && list->type == RTSTR;
}

}  // namespace

std::optional<ItemArguments> ReadItemArguments(const sds_resbuf* list) {
    if (!BeginsWithString(list))
        return std::nullopt;
    ItemArguments arguments{list->value.string};
    const sds_resbuf* second = list->next;
    if (second == nullptr)
        return arguments;
    if (second->type == RTREAL)
        arguments.scale = second->value.real;
    // The third is looked at whatever the second was.
    const sds_resbuf* third = second->next;
    if (third != nullptr && third->type == RTSHORT)
        arguments.mode = third->value.integer;
    return arguments;
}

int RunItemDialog() {
    const std::optional<ItemArguments> arguments = ReadItemArguments(sds_getargs());
    if (!arguments)
        return 0;
    return RunFramed([&](CWnd* parent) {
        CTavrinWndDlg dialog(parent);
        dialog.SetArguments(arguments->baseName, arguments->scale, arguments->mode);
        if (dialog.DoModal() == IDOK)
            sds_retint(0);
        else
            sds_retnil();
        return 0;
    });
}

int RunChoiceDialog() {
    if (sds_getargs() != nullptr)
        sds_retnil();
    return 0;
}

int RunPreviewDialog() {
    if (BeginsWithString(sds_getargs()))
        sds_retnil();
    return 0;
}
