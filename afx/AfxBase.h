// Windows' own header, which enters the program here alone, and the framework's plain macros.
#pragma once

#ifndef UNICODE
#error "The framework is built for UTF-16 text alone: UNICODE and _UNICODE must be defined"
#endif

#include <windows.h>
// Left out of windows.h by WIN32_LEAN_AND_MEAN but part of what the framework offers.
#include <commdlg.h>
#include <ole2.h>
#include <tchar.h>

#include <cassert>

#define afx_msg
#define AFXAPI __stdcall

#ifdef NDEBUG
#define ASSERT(condition) static_cast<void>(0)
#else
#define ASSERT(condition) assert(condition)
#endif
