// The framework's windows: module state, message maps, device contexts, controls, dialogs.
#pragma once

#include "afx.h"
#include "atltypes.h"
// The parts, each of which builds on the ones before.
#include "AfxDataExchange.h"
#include "AfxDialog.h"
#include "AfxModuleState.h"
#include "AfxWnd.h"
