// The interface of the host CAD application, as this module uses it and as the stand-in host offers it.
//
// The functions are exported by the host's executable, whatever its file is called. The module calls
// them through pointers that BindHost (HostBinding.h) fills; a host that includes this header defines
// SDS_HOST first and exports the functions itself.
//
// All text is zero-terminated UTF-16. A function that returns a status returns RTNORM for success;
// every other status is a failure. Everything is called on the host's user-interface thread.
#pragma once

#include <cstddef>

// As the system declares it for strict types: this header takes none of the system's.
struct HWND__;
using HWND = HWND__*;

#ifdef SDS_HOST
#define SDS_API extern "C" __declspec(dllexport)
#else
#define SDS_API extern "C" __declspec(dllimport)
#endif

// Status of a call that succeeded.
inline constexpr int RTNORM = 5100;

// Type codes of the values in the host's lists.
inline constexpr short RTNONE = 5000;   // no value; ends the arguments of sds_buildlist
inline constexpr short RTREAL = 5001;   // value.real
inline constexpr short RTSHORT = 5003;  // value.integer
inline constexpr short RTSTR = 5005;    // value.string

// One value of the host's linked lists. Lists and the strings in them belong to the host.
struct sds_resbuf {
    sds_resbuf* next;
    short type;
    union {
        double real;
        double point[3];
        short integer;
        wchar_t* string;
    } value;
};

// Request codes of icrxEntryPoint.
inline constexpr unsigned SDS_LOAD = 1;
inline constexpr unsigned SDS_UNLOAD = 2;
inline constexpr unsigned SDS_INVOKE = 5;
inline constexpr unsigned SDS_LAST_REQUEST = 17;

// Makes the LISP function `name` known under `code`; sds_undef removes it. 0 for failure.
SDS_API int sds_defun(const wchar_t* name, short code);
SDS_API int sds_undef(const wchar_t* name, short code);

// During an invoke request: the code of the function that LISP called, and its arguments (null when
// there are none; the list stays valid until the request returns).
SDS_API int sds_getfuncode(void);
SDS_API sds_resbuf* sds_getargs(void);

// During an invoke request: the result of the LISP call. Without one of these calls it has none.
SDS_API int sds_retint(int value);
SDS_API int sds_retnil(void);
SDS_API int sds_retlist(const sds_resbuf* list);

// A new list from pairs of a type code and a value (RTREAL: double, RTSHORT: int, RTSTR: const
// wchar_t*), ended by RTNONE; null when there is no memory. The host owns the list: the caller does not free
// it.
SDS_API sds_resbuf* sds_buildlist(int type, ...);

// sds_fail reports to the host that the running request failed; sds_alert shows a text to the user.
SDS_API int sds_fail(const wchar_t* message);
SDS_API int sds_alert(const wchar_t* message);

// The host's main window.
SDS_API HWND sds_getmainhwnd(void);

// Looks for a file on the host's search path. On RTNORM `result` holds its full path. It needs room for more
// than `capacity` characters: some hosts write the terminating zero after the capacity.
SDS_API int sds_findfile(const wchar_t* name, wchar_t* result, size_t capacity);

// Reads a system variable; on RTNORM `result` holds its value (LUNITS and LUPREC: RTSHORT).
SDS_API int sds_getvar(const wchar_t* name, sds_resbuf* result);

// A number in the drawing's linear format and back. `units` is a value of LUNITS (1 scientific, 2
// decimal, 3 engineering, 4 architectural, 5 fractional), `precision` a value of LUPREC or -1 for the
// drawing's own. `text` must hold 256 characters.
SDS_API int sds_rtos(double value, int units, int precision, wchar_t* text);
SDS_API int sds_distof(const wchar_t* text, int units, double* result);

// Asks the user for a point, or for a distance from `base`, in drawing units. `base` may be null. Any
// status but RTNORM means that there is no answer.
SDS_API int sds_getpoint(const double* base, const wchar_t* prompt, double* point);
SDS_API int sds_getdist(const double* base, const wchar_t* prompt, double* distance);
