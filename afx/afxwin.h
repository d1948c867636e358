// The framework's windows: module state, message maps, device contexts, controls, dialogs.
#pragma once

#include "afx/afx.h"
#include "afx/atltypes.h"
// The parts, each of which builds on the ones before.
#include "afx/AfxDataExchange.h"
#include "afx/AfxDialog.h"
#include "afx/AfxModuleState.h"
#include "afx/AfxWnd.h"
