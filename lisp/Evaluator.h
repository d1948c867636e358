// Evaluates LISP.
//
// Numbers, texts, functions and nil evaluate to themselves; a symbol evaluates to the value that was last
// assigned to it, or nil. A list is a call of the function that its first element names. Variables and
// functions share one table: a function is the value of its name. Scope is dynamic: until a function returns,
// its parameters and locals hide other values of the same names, also in the functions that it calls.
//
//     CNullLispHost host;
//     CEvaluator evaluator(host);
//     evaluator.Run(ReadText(L"(defun twice (x) (* 2 x)) (twice 4)"));   // 8
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "lisp/Function.h"
#include "lisp/LispError.h"
#include "lisp/LispHost.h"
#include "lisp/Source.h"
#include "lisp/Value.h"

namespace tavrin::lisp {

class CEvaluator {
public:
    // How much of the thread's stack an evaluation may use, in bytes; deeper nesting is an error. The thread
    // needs several hundred thousand bytes more than this.
    static constexpr std::size_t kStackBytes = std::size_t{4} * 1024 * 1024;
    // How much memory all values together may use, in bytes, unless another limit is set.
    static constexpr std::size_t kMemoryBytes = std::size_t{512} * 1024 * 1024;

    // Defines the built-in functions. The host must outlive the evaluator.
    explicit CEvaluator(ILispHost& host, std::size_t stackBytes = kStackBytes);
    CEvaluator(const CEvaluator&) = delete;
    CEvaluator& operator=(const CEvaluator&) = delete;

    // Defines a native function; names are not case-sensitive. False when the name is that of another native
    // function, or not a valid name. A value that LISP assigned to the name is replaced.
    bool Define(std::wstring_view name, NativeFunction function);
    // False when there is no such function. A value that LISP assigned to the name stays.
    bool Undefine(std::wstring_view name);

    // Evaluates the expressions in order and returns the value of the last one, nil without any. Throws
    // LispExit, and CLispError with the source location in its text, after the user's *error* function has
    // been called if there is one.
    LispResult Run(const Source& source);

    // How many bytes all values may use, from the next evaluation on. An evaluation that begins above the
    // limit, because of what the variables hold, gets a reserve, so that it can release memory.
    void SetMemoryLimit(std::size_t bytes);

    // For built-in functions and special forms, during an evaluation.

    // Throws CLispError, like all functions below. It has a location only if a LISP function failed inside.
    LispResult Evaluate(const CValue& expression);
    // The same where a value is required: no value is an error that names `user`.
    CValue EvaluateValue(const CValue& expression, std::wstring_view user);
    // The value of the last expression of a list, nil for none.
    LispResult EvaluateBody(const CValue& body);
    // Calls a function by its value: a function, the name of one, or a (lambda …) list.
    LispResult Apply(const CValue& function, std::span<const CValue> arguments);
    CValue ApplyForValue(const CValue& function, std::span<const CValue> arguments);
    // The function that (lambda PARAMETERS BODY…) or (defun NAME PARAMETERS BODY…) defines; `definition` is
    // the list from PARAMETERS on.
    CValue MakeFunction(const std::wstring& name, const CValue& definition);

    // nil when nothing was assigned. Names are in capitals.
    CValue Variable(const std::wstring& name) const;
    // Whether a call of this name, in capitals, has a function to call.
    bool IsFunction(const std::wstring& name) const;
    // Throws CLispError for T.
    void Assign(const std::wstring& name, CValue value);

    ILispHost& Host() { return m_host; }
    // Counts steps (evaluated expressions and created list elements), checks the memory limit and polls for
    // Escape from time to time.
    void Step(std::uint64_t steps = 1);
    // Throws CLispError when the stack is nearly used up. For native functions that recurse.
    void CheckStack() const;

private:
    // A running function or source; a source inside another is one that LOAD runs.
    struct Frame {
        const std::wstring* function;  // null for the source
        const std::wstring* file;
        int line;
        const Frame* caller = nullptr;
    };
    class CFrameScope;
    class CBindings;

    bool IsNative(const std::wstring& name) const;
    LispResult Call(const CValue& call);
    CValue MakeQuotedLambda(const CValue& list);
    std::shared_ptr<const FunctionObject> FunctionOf(const CValue& head);
    LispResult Invoke(const FunctionObject& function, std::span<const CValue> arguments);
    LispResult CallDefined(const FunctionObject& function, const Definition& definition,
                           std::span<const CValue> arguments);
    void Settle(CLispError& error);
    void CheckMemory() const;
    std::wstring Location() const;

    ILispHost& m_host;
    std::size_t m_stackBytes;
    std::uintptr_t m_stackStart = 0;
    std::size_t m_memoryLimit = kMemoryBytes;
    std::size_t m_maxHeld = 0;  // bytes, for the running evaluation
    std::uint64_t m_steps = 0;  // since the last poll for Escape
    std::unordered_map<std::wstring, CValue> m_variables;
    Frame* m_frame = nullptr;  // null outside of evaluations
    bool m_inErrorHandler = false;
};

}  // namespace tavrin::lisp
