// The part of OLE automation that the framework offers: dates.
#pragma once

#include "afx/atlcomtime.h"
