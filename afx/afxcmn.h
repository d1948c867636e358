// The framework's common controls.
#pragma once

#include "afxwin.h"
// Needs Windows.
#include <commctrl.h>
