// The framework's month calendar and date picker.
#pragma once

#include "afxcmn.h"
#include "atlcomtime.h"
#include "atltime.h"
