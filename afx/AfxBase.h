// Windows' own header, which enters the program here alone, and the framework's plain macros.
#pragma once

#ifndef UNICODE
#error "The framework is built for UTF-16 text alone: UNICODE and _UNICODE must be defined"
#endif

// As the framework itself does. Its order of the system's headers, and the macros that they are read under,
// hold for the whole program.
#if defined(_WINDOWS_) || defined(_WINDEF_)
#error "windows.h (or windef.h) came first: a file includes the framework's header before any of the system's"
#endif

#include <windows.h>
// Left out of windows.h by WIN32_LEAN_AND_MEAN but part of what the framework offers.
#include <commdlg.h>
#include <ole2.h>
#include <tchar.h>

#include <cassert>

#define afx_msg
#define AFXAPI __stdcall
#define AFX_CDECL __cdecl

#ifdef NDEBUG
#define ASSERT(condition) static_cast<void>(0)
#else
#define ASSERT(condition) assert(condition)
#endif
