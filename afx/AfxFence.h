// The fence between the module's code and Windows: no exception may cross a procedure that Windows calls.
#pragma once

#include <exception>

#include "afx/AfxException.h"

// Tells the user of an exception that nobody caught, unless it says that he knows already, and frees it.
// Call from a catch block alone. isCommand: a command of the user's failed.
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
