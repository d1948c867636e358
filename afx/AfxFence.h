// The fence between the module's code and Windows: no exception may cross a procedure that Windows calls.
#pragma once

#include <exception>

#include "afx/AfxException.h"

// Reports an uncaught exception in a message box and frees it. A CUserException is only freed: the user has
// already seen its reason. To be called inside a catch block. isCommand: whether a user's command failed.
void AfxReportCaught(bool isCommand);

// Runs the work; false when it threw.
template <class TWork>
bool AfxGuard(TWork work, bool isCommand = false) {
    try {
        work();
        return true;
    } catch (...) {
        AfxReportCaught(isCommand);
        return false;
    }
}
