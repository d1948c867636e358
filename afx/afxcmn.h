// The framework's common controls.
#pragma once

#include "afx/afxwin.h"
// Needs Windows.
#include <commctrl.h>
