// The functions behind the command table. Each reads its arguments from the host, runs its dialog over
// the host's main window with the module's own resources, and sets the LISP result; a wrong first
// argument sets none. Nothing that happens inside passes to the host as an exception: LISP gets nil.
// The value returned is not used by the host.
#pragma once

#include <optional>

struct sds_resbuf;

namespace tavrin::host {

// (tavrinwnd baseName [scale mode]): 0 after OK, nil otherwise.
int RunItemDialog();

// (tavrinselmask replaceCaption skip3D name...): a list of a code and the chosen name, or nil.
int RunChoiceDialog();

// (tavrinprevmask imageName): 0 after Enter, nil otherwise.
int RunPreviewDialog();

// The arguments of tavrinwnd.
struct ItemArguments {
    const wchar_t* baseName;  // the host's, valid during the call
    double scale = 1.0;
    int mode = 0;
};

// Nothing when there is no list or it does not begin with a string. A second argument that is no real
// and a third that is no short leave the defaults.
std::optional<ItemArguments> ReadItemArguments(const sds_resbuf* list);

}  // namespace tavrin::host
