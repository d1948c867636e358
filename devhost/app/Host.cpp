#include "devhost/app/Host.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

#include "devhost/Libraries.h"
#include "devhost/app/CrashReport.h"
#include "devhost/app/LispConsole.h"
#include "units/LinearUnits.h"

namespace devhost {

namespace {

CHost* theHost = nullptr;

constexpr std::size_t kTextCapacity = 256;  // characters that sds_rtos may write

}  // namespace

CHost::CHost(CMainWindow& window, CTextOutput& output, const CSearchPath& searchPath,
             const CSystemVariables& variables, lisp::CEvaluator& evaluator)
    : m_window(window),
      m_output(output),
      m_searchPath(searchPath),
      m_variables(variables),
      m_evaluator(evaluator),
      m_thread(GetCurrentThreadId()) {
    theHost = this;
}

CHost::~CHost() {
    theHost = nullptr;
}

CHost* CHost::OfThisThread() {
    return theHost != nullptr && theHost->m_thread == GetCurrentThreadId() ? theHost : nullptr;
}

int CHost::Run(EntryPoint& entry, Request& request) {
    Request* const before = m_request;
    m_request = &request;
    try {
        const int answer = entry(request.code, nullptr);
        m_request = before;
        return answer;
    } catch (...) {
        ExitOnException(request.code);
    }
}

std::wstring CHost::Send(EntryPoint& entry, unsigned code) {
    Request request(code);
    const int answer = Run(entry, request);
    if (request.failure) {
        return L"it reported '" + *request.failure + L"'";
    }
    return answer != 0 ? L"it returned " + std::to_wstring(answer) : L"";
}

std::wstring CHost::ForgetFunctions() {
    std::wstring names;
    for (const auto& [name, code] : m_codes) {
        m_evaluator.Undefine(name);
        names += names.empty() ? name : L' ' + name;
    }
    m_codes.clear();
    return names;
}

lisp::LispResult CHost::Invoke(const std::wstring& name, short code,
                               std::span<const lisp::CValue> arguments) {
    if (m_request != nullptr) {
        throw lisp::CLispError(name + L" cannot be called while another call is running");
    }
    if (!m_codes.contains(name)) {
        throw lisp::CLispError(name + L" belongs to a plug-in that is no longer loaded");
    }
    Request request(SDS_INVOKE, code);
    for (const lisp::CValue& argument : arguments) {
        AddArgument(request.arguments, argument, name);
    }
    if (m_onCall) {
        m_onCall(name, arguments);
    }
    m_output.Flush();
    const int answer = Run(*m_entry, request);
    if (request.failure) {
        throw CReportedError(*request.failure);
    }
    if (answer != 0) {
        throw lisp::CLispError(L"the plug-in returned " + std::to_wstring(answer) + L" for the call of " +
                               name);
    }
    return request.result;
}

bool CHost::Define(const wchar_t* name, short code) {
    if (name == nullptr || m_entry == nullptr) {
        return false;
    }
    const std::wstring upperCase = lisp::UpperCase(name);
    const bool defined =
        m_evaluator.Define(upperCase, [this, upperCase, code](std::span<const lisp::CValue> arguments) {
            return Invoke(upperCase, code, arguments);
        });
    if (defined) {
        m_codes[upperCase] = code;
    }
    return defined;
}

bool CHost::Undefine(const wchar_t* name, short code) {
    if (name == nullptr) {
        return false;
    }
    const auto found = m_codes.find(lisp::UpperCase(name));
    if (found == m_codes.end() || found->second != code) {
        return false;
    }
    m_evaluator.Undefine(found->first);
    m_codes.erase(found);
    return true;
}

int CHost::FunctionCode() const {
    return m_request != nullptr ? m_request->functionCode : -1;
}

sds_resbuf* CHost::Arguments() {
    return m_request != nullptr ? m_request->arguments.First() : nullptr;
}

bool CHost::SetResult(lisp::CValue result) {
    if (m_request == nullptr || m_request->code != SDS_INVOKE) {
        return false;
    }
    m_request->result = std::move(result);
    return true;
}

CResbufList* CHost::NewList() {
    return m_request != nullptr ? &m_request->lists.emplace_back() : nullptr;
}

int CHost::Fail(const wchar_t* message) {
    const std::wstring text = message != nullptr ? message : L"";
    m_output.Line(L"; error: " + text);
    if (m_request == nullptr) {
        return kStatusError;
    }
    m_request->failure = text;
    return RTNORM;
}

int CHost::Alert(const wchar_t* message) {
    ShowAlert(m_window, m_output, message != nullptr ? message : L"");
    return RTNORM;
}

int CHost::FindFile(const wchar_t* name, wchar_t* result, std::size_t capacity) const {
    if (name == nullptr || result == nullptr) {
        return kStatusError;
    }
    const auto path = m_searchPath.Find(name);
    if (!path || path->size() >= capacity) {
        return kStatusError;
    }
    std::wmemcpy(result, path->c_str(), path->size() + 1);
    return RTNORM;
}

int CHost::GetVariable(const wchar_t* name, sds_resbuf* result) const {
    if (name == nullptr || result == nullptr) {
        return kStatusError;
    }
    const lisp::CValue value = m_variables.Get(lisp::UpperCase(name));
    if (value.IsNil()) {
        return kStatusError;
    }
    result->next = nullptr;
    result->type = RTSHORT;
    result->value.integer = static_cast<short>(value.AsInteger());
    return RTNORM;
}

int CHost::ToText(double value, int units, int precision, wchar_t* text) const {
    if (text == nullptr) {
        return kStatusError;
    }
    // Also on failure, since a caller may show the buffer without checking the status.
    text[0] = L'\0';
    const auto formatted =
        units::FormatLinear(value, units, precision < 0 ? m_variables.Linear().luprec : precision);
    if (!formatted || formatted->size() >= kTextCapacity) {
        return kStatusError;
    }
    std::wmemcpy(text, formatted->c_str(), formatted->size() + 1);
    return RTNORM;
}

int CHost::ToNumber(const wchar_t* text, double* result) const {
    const auto number = text != nullptr ? units::ParseLinear(text) : std::nullopt;
    if (!number || result == nullptr) {
        return kStatusError;
    }
    *result = *number;
    return RTNORM;
}

int CHost::Pick(std::optional<Point> base, const wchar_t* prompt, Point& picked) {
    // The user cannot answer while the main window is disabled.
    if (m_request == nullptr || m_window.IsAsking() || !IsWindowEnabled(m_window.Handle())) {
        return kStatusError;
    }
    if (base && !(std::isfinite(base->x) && std::isfinite(base->y))) {
        return kStatusError;
    }
    const auto point = m_window.PickPoint(StatusText(prompt != nullptr ? prompt : L""), base);
    if (!point) {
        return kStatusCancelled;
    }
    picked = *point;
    return RTNORM;
}

int CHost::GetPoint(const double* base, const wchar_t* prompt, double* point) {
    if (point == nullptr) {
        return kStatusError;
    }
    Point picked;
    const int status =
        Pick(base != nullptr ? std::optional(Point{base[0], base[1]}) : std::nullopt, prompt, picked);
    if (status == RTNORM) {
        point[0] = picked.x;
        point[1] = picked.y;
        point[2] = 0;
    }
    return status;
}

int CHost::GetDistance(const double* base, const wchar_t* prompt, double* distance) {
    if (distance == nullptr) {
        return kStatusError;
    }
    double from[3] = {0, 0, 0};
    if (base != nullptr) {
        std::copy_n(base, 3, from);
    } else if (const int status = GetPoint(nullptr, prompt, from); status != RTNORM) {
        return status;
    }
    double to[3];
    const int status = GetPoint(from, base != nullptr ? prompt : L"Second point: ", to);
    if (status == RTNORM) {
        *distance = std::hypot(to[0] - from[0], to[1] - from[1], to[2] - from[2]);
    }
    return status;
}

}  // namespace devhost
