#include "host/Commands.h"

#include <afxwin.h>

#include "imagedlg/ChoiceSlides.h"
#include "imagedlg/TavrinPreviewDlg.h"
#include "imagedlg/TavrinSelMaskDlg.h"
#include "itemdlg/TavrinWndDlg.h"
#include "memory/MemoryFence.h"
#include "res/TextLibrary.h"
#include "sds/sds.h"

namespace tavrin::host {

namespace {

// Runs the body of a command with the module's own resources, restored on every way out. When the body
// throws, LISP gets nil; an exception of the framework's is shown in a message box first.
template <typename Body>
int RunFramed(Body body) {
    AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
    try {
        return memory::FenceMemory([&] { return body(CWnd::FromHandle(sds_getmainhwnd())); });
    } catch (CException* exception) {
        exception->ReportError();
        exception->Delete();
    } catch (...) {  // nothing may reach the host
    }
    sds_retnil();
    return 0;
}

bool BeginsWithString(const sds_resbuf* list) {
    return list != nullptr && list->type == RTSTR;
}

// Sets the LISP result of a function that only says whether its dialog was confirmed.
void SetResultOf(INT_PTR dialogResult) {
    if (dialogResult == IDOK) {
        sds_retint(0);
    } else {
        sds_retnil();
    }
}

// Gives the dialog the caption, the 3D flag and each of the names that has a slide.
void TakeChoiceArguments(const sds_resbuf* list, imagedlg::CTavrinSelMaskDlg& dialog) {
    // Only the value of a string is the address of a text. The flag is taken from any value, and a caller
    // that gives none is in error but must not bring the host down.
    const wchar_t* const caption = list->type == RTSTR ? list->value.string : L"";
    const sds_resbuf* const flag = list->next;
    dialog.SetArguments(caption, flag != nullptr ? flag->value.integer : 0);
    if (flag == nullptr) {
        return;
    }
    for (const sds_resbuf* item = flag->next; item != nullptr; item = item->next) {
        if (item->type == RTSTR) {
            dialog.AddChoice(item->value.string);
        }
    }
}

}  // namespace

std::optional<ItemArguments> ReadItemArguments(const sds_resbuf* list) {
    if (!BeginsWithString(list)) {
        return std::nullopt;
    }
    ItemArguments arguments{list->value.string};
    const sds_resbuf* second = list->next;
    if (second == nullptr) {
        return arguments;
    }
    if (second->type == RTREAL) {
        arguments.scale = second->value.real;
    }
    // The third is looked at whatever the second was.
    const sds_resbuf* third = second->next;
    if (third != nullptr && third->type == RTSHORT) {
        arguments.mode = third->value.integer;
    }
    return arguments;
}

int RunItemDialog() {
    const std::optional<ItemArguments> arguments = ReadItemArguments(sds_getargs());
    if (!arguments) {
        return 0;
    }
    return RunFramed([&](CWnd* parent) {
        itemdlg::CTavrinWndDlg dialog(parent);
        dialog.SetArguments(arguments->baseName, arguments->scale, arguments->mode);
        SetResultOf(dialog.DoModal());
        return 0;
    });
}

int RunChoiceDialog() {
    const sds_resbuf* const list = sds_getargs();
    if (list == nullptr) {
        return 0;
    }
    return RunFramed([&](CWnd* parent) {
        imagedlg::CTavrinSelMaskDlg dialog(parent);
        TakeChoiceArguments(list, dialog);
        if (dialog.GetCount() == 0) {
            static res::CTextLibrary texts;
            sds_alert(texts.Load(imagedlg::kNoSlideText));
            sds_retnil();
            return 1;
        }
        dialog.LoadSlides();
        // The host keeps the list: it is not released here. It has none to give when its memory runs out.
        const sds_resbuf* const result = dialog.DoModal() == IDOK
                                             ? sds_buildlist(RTSHORT, dialog.GetResult(), RTSTR,
                                                             dialog.GetSelectedName().GetString(), RTNONE)
                                             : nullptr;
        if (result != nullptr) {
            sds_retlist(result);
        } else {
            sds_retnil();
        }
        return 0;
    });
}

int RunPreviewDialog() {
    const sds_resbuf* const list = sds_getargs();
    if (!BeginsWithString(list)) {
        return 0;
    }
    return RunFramed([&](CWnd* parent) {
        imagedlg::CTavrinPreviewDlg dialog(parent);
        dialog.SetName(list->value.string);
        SetResultOf(dialog.DoModal());
        return 0;
    });
}

}  // namespace tavrin::host
