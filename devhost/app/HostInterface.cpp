// The functions of sds.h, exported from the executable. Each forwards to the host and lets no exception
// through. They fail when there is no host, and on other threads than the host's.
#include <windows.h>

#include <cstdarg>

#include "devhost/Libraries.h"
#include "devhost/app/Host.h"

namespace devhost {

namespace {

// The result of `call` for the host, or `failure`.
template <typename TResult, typename TCall>
TResult Fenced(TResult failure, TCall call) noexcept {
    CHost* host = CHost::OfThisThread();
    if (host == nullptr) {
        return failure;
    }
    try {
        return call(*host);
    } catch (...) {
        return failure;
    }
}

int StatusOf(bool done) {
    return done ? RTNORM : kStatusError;
}

// Takes one value of `type` off the arguments. False for a type without values.
bool AddNext(CResbufList& list, int type, std::va_list& values) {
    switch (type) {
        case RTREAL:
            list.AddReal(va_arg(values, double));
            return true;
        case RTSHORT:
            list.AddShort(static_cast<short>(va_arg(values, int)));
            return true;
        case RTSTR: {
            const auto* text = va_arg(values, const wchar_t*);
            if (text != nullptr) {
                list.AddString(text);
            }
            return text != nullptr;
        }
        default:
            return false;
    }
}

sds_resbuf* BuildList(CHost& host, int type, std::va_list& values) {
    CResbufList* list = host.NewList();
    if (list == nullptr) {
        return nullptr;
    }
    for (; type != RTNONE; type = va_arg(values, int)) {
        if (!AddNext(*list, type, values)) {
            return nullptr;
        }
    }
    return list->First();
}

}  // namespace

}  // namespace devhost

using devhost::BuildList;
using devhost::CHost;
using devhost::Fenced;
using devhost::kStatusError;
using devhost::StatusOf;
using tavrin::lisp::CValue;

int sds_defun(const wchar_t* name, short code) {
    return Fenced(0, [=](CHost& host) { return host.Define(name, code) ? RTNORM : 0; });
}

int sds_undef(const wchar_t* name, short code) {
    return Fenced(0, [=](CHost& host) { return host.Undefine(name, code) ? RTNORM : 0; });
}

int sds_getfuncode() {
    return Fenced(-1, [](CHost& host) { return host.FunctionCode(); });
}

sds_resbuf* sds_getargs() {
    return Fenced<sds_resbuf*>(nullptr, [](CHost& host) { return host.Arguments(); });
}

int sds_retint(int value) {
    return Fenced(kStatusError,
                  [=](CHost& host) { return StatusOf(host.SetResult(CValue::Integer(value))); });
}

int sds_retnil() {
    return Fenced(kStatusError, [](CHost& host) { return StatusOf(host.SetResult(CValue())); });
}

int sds_retlist(const sds_resbuf* list) {
    return Fenced(kStatusError, [=](CHost& host) {
        const auto value = devhost::ToLisp(list);
        return StatusOf(value && host.SetResult(*value));
    });
}

sds_resbuf* sds_buildlist(int type, ...) {
    std::va_list values = {};
    va_start(values, type);
    auto* const list =
        Fenced<sds_resbuf*>(nullptr, [&](CHost& host) { return BuildList(host, type, values); });
    va_end(values);
    return list;
}

int sds_fail(const wchar_t* message) {
    return Fenced(kStatusError, [=](CHost& host) { return host.Fail(message); });
}

int sds_alert(const wchar_t* message) {
    return Fenced(kStatusError, [=](CHost& host) { return host.Alert(message); });
}

HWND sds_getmainhwnd() {
    return Fenced<HWND>(nullptr, [](CHost& host) { return host.MainWindow(); });
}

int sds_findfile(const wchar_t* name, wchar_t* result, std::size_t capacity) {
    return Fenced(kStatusError, [=](CHost& host) { return host.FindFile(name, result, capacity); });
}

int sds_getvar(const wchar_t* name, sds_resbuf* result) {
    return Fenced(kStatusError, [=](CHost& host) { return host.GetVariable(name, result); });
}

int sds_rtos(double value, int units, int precision, wchar_t* text) {
    return Fenced(kStatusError, [=](CHost& host) { return host.ToText(value, units, precision, text); });
}

// Accepts every format, whatever the second argument says.
int sds_distof(const wchar_t* text, int, double* result) {
    return Fenced(kStatusError, [=](CHost& host) { return host.ToNumber(text, result); });
}

int sds_getpoint(const double* base, const wchar_t* prompt, double* point) {
    return Fenced(kStatusError, [=](CHost& host) { return host.GetPoint(base, prompt, point); });
}

int sds_getdist(const double* base, const wchar_t* prompt, double* distance) {
    return Fenced(kStatusError, [=](CHost& host) { return host.GetDistance(base, prompt, distance); });
}
