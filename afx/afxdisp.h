// What the framework offers of OLE automation: dates.
#pragma once

#include "atlcomtime.h"
