// The host as a plug-in sees it: the LISP functions that plug-ins define, the request that is running, the
// system variables, the search path and the points that the user shows. HostInterface.cpp exports its
// operations as sds_...
//
// Everything happens on the thread that made the host. One exists at a time.
#pragma once

#include <windows.h>

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "devhost/app/ResbufList.h"
#include "devhost/app/SearchPath.h"
#include "devhost/app/SystemVariables.h"
#include "devhost/app/TextOutput.h"
#include "devhost/window/MainWindow.h"
#include "lisp/Evaluator.h"

// The statuses besides RTNORM.
inline constexpr int kStatusError = -5001;
inline constexpr int kStatusCancelled = -5002;  // the user pressed Escape or the application is ending

// The entry point of a plug-in.
using CEntryPoint = int(unsigned request, void* packet);

// An evaluation that ended because the plug-in said so with sds_fail, which has shown its text already.
class CReportedError : public CLispError {
public:
    using CLispError::CLispError;
};

class CHost {
public:
    // All must outlive the host.
    CHost(CMainWindow& window, CTextOutput& output, const CSearchPath& searchPath,
          const CSystemVariables& variables, CEvaluator& evaluator);
    ~CHost();
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;

    // The host, when this is its thread; otherwise null.
    static CHost* OfThisThread();

    // Sends a request other than an invocation. What the plug-in has against it, for the user; empty when
    // it answered 0 and did not report a failure. A C++ exception that it lets out ends the process.
    std::wstring Send(CEntryPoint& entry, unsigned request);
    // The plug-in that the functions defined from now on belong to.
    void SetEntryPoint(CEntryPoint* entry) { m_entry = entry; }
    // Forgets the functions that are still defined; their names, separated by blanks.
    std::wstring ForgetFunctions();

    // The host interface; sds.h says what each does. Pointers may be null.
    bool Define(const wchar_t* name, short code);
    bool Undefine(const wchar_t* name, short code);
    int FunctionCode() const;
    sds_resbuf* Arguments();
    bool SetResult(CValue result);
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
    // A request to the plug-in while it is running.
    struct SRequest {
        explicit SRequest(unsigned requestCode, int function = -1)
            : code(requestCode), functionCode(function) {}

        unsigned code;
        int functionCode;
        CResbufList arguments;
        std::deque<CResbufList> lists;
        CLispResult result;
        std::optional<std::wstring> failure;
    };

    int Run(CEntryPoint& entry, SRequest& request);
    CLispResult Invoke(const std::wstring& name, short code, std::span<const CValue> arguments);
    int Pick(std::optional<SPoint> base, const wchar_t* prompt, SPoint& picked);

    CMainWindow& m_window;
    CTextOutput& m_output;
    const CSearchPath& m_searchPath;
    const CSystemVariables& m_variables;
    CEvaluator& m_evaluator;
    DWORD m_thread;
    std::map<std::wstring, short> m_codes;  // of the plug-in's functions, by name
    CEntryPoint* m_entry = nullptr;
    SRequest* m_request = nullptr;
};
