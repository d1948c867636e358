// The host as a plug-in sees it: the LISP functions that plug-ins define, the running request, the system
// variables, the search path and the points that the user picks. HostInterface.cpp exports its operations as
// sds_...
//
// Everything happens on the thread that created the host. There is one host at a time.
#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>

#include "devhost/Libraries.h"
#include "devhost/app/ResbufList.h"
#include "devhost/app/SearchPath.h"
#include "devhost/app/SystemVariables.h"
#include "devhost/app/TextOutput.h"
#include "devhost/window/MainWindow.h"
#include "lisp/Evaluator.h"

namespace devhost {

// The statuses besides RTNORM.
inline constexpr int kStatusError = -5001;
inline constexpr int kStatusCancelled = -5002;  // the user pressed Escape or the application is ending

// The entry point of a plug-in.
using EntryPoint = int(unsigned request, void* packet);

// The plug-in ended the evaluation with sds_fail, which has already shown the text.
class CReportedError : public lisp::CLispError {
public:
    using lisp::CLispError::CLispError;
};

class CHost {
public:
    // All must outlive the host.
    CHost(CMainWindow& window, CTextOutput& output, const CSearchPath& searchPath,
          const CSystemVariables& variables, lisp::CEvaluator& evaluator);
    ~CHost();
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;

    // The host, when this is its thread; otherwise null.
    static CHost* OfThisThread();

    // Sends a request other than an invocation. Returns the plug-in's objection for the user; empty when it
    // returned 0 and reported no failure. A C++ exception that it lets through ends the process.
    std::wstring Send(EntryPoint& entry, unsigned code);
    // The entry point for functions that are defined from now on.
    void SetEntryPoint(EntryPoint* entry) { m_entry = entry; }
    // Called before a function of the plug-in, with its name in capitals and its arguments.
    using CallListener =
        std::function<void(const std::wstring& function, std::span<const lisp::CValue> arguments)>;
    void SetCallListener(CallListener onCall) { m_onCall = std::move(onCall); }
    // Removes the functions that are still defined and returns their names, separated by blanks.
    std::wstring ForgetFunctions();

    // The host interface; see sds.h. Pointers may be null.
    bool Define(const wchar_t* name, short code);
    bool Undefine(const wchar_t* name, short code);
    int FunctionCode() const;
    sds_resbuf* Arguments();
    bool SetResult(lisp::CValue result);
    CResbufList* NewList();  // lives until the request ends; null when none is running
    int Fail(const wchar_t* message);
    int Alert(const wchar_t* message);
    HWND MainWindow() const { return m_window.Handle(); }
    int FindFile(const wchar_t* name, wchar_t* result, std::size_t capacity) const;
    int GetVariable(const wchar_t* name, sds_resbuf* result) const;
    int ToText(double value, int units, int precision, wchar_t* text) const;
    int ToNumber(const wchar_t* text, double* result) const;
    int GetPoint(const double* base, const wchar_t* prompt, double* point);
    int GetDistance(const double* base, const wchar_t* prompt, double* distance);

private:
    // A running request to the plug-in.
    struct Request {
        explicit Request(unsigned requestCode, int function = -1)
            : code(requestCode), functionCode(function) {}

        unsigned code;
        int functionCode;
        CResbufList arguments;
        std::deque<CResbufList> lists;
        lisp::LispResult result;
        std::optional<std::wstring> failure;
    };

    int Run(EntryPoint& entry, Request& request);
    lisp::LispResult Invoke(const std::wstring& name, short code, std::span<const lisp::CValue> arguments);
    int Pick(std::optional<Point> base, const wchar_t* prompt, Point& picked);

    CMainWindow& m_window;
    CTextOutput& m_output;
    const CSearchPath& m_searchPath;
    const CSystemVariables& m_variables;
    lisp::CEvaluator& m_evaluator;
    DWORD m_thread;
    std::map<std::wstring, short> m_codes;  // of the plug-in's functions, by name
    CallListener m_onCall;
    EntryPoint* m_entry = nullptr;
    Request* m_request = nullptr;
};

}  // namespace devhost
