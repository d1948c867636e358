// What the framework offers of OLE automation: dates.
#pragma once

#include "afx/atlcomtime.h"
