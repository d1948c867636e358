// The framework's common dialogs.
#pragma once

#include "afxwin.h"
