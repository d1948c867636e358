// Calendar times.
#pragma once

#include "afx.h"
