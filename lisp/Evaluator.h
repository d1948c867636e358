// Evaluates LISP.
//
// Numbers, texts, functions and nil are their own value; a symbol's value is what was last assigned to it,
// nil when nothing was. A list is a call of the function that its first element names. Variables and
// functions share one table: a function is the value of its name. Scope is dynamic: a function's parameters
// and locals hide what the names meant before until the function returns, also for the functions that it
// calls.
//
// A text to the end:
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

class CEvaluator {
public:
    // How much of the thread's stack an evaluation may take, in bytes; calls nested deeper are an error. The
    // thread needs some hundred thousand bytes more than this.
    static constexpr std::size_t kStackBytes = std::size_t{4} * 1024 * 1024;
    // How much memory all values together may hold, in bytes, unless another limit is set.
    static constexpr std::size_t kMemoryBytes = std::size_t{512} * 1024 * 1024;

    // Knows the built-in functions. The host must outlive the evaluator.
    explicit CEvaluator(ILispHost& host, std::size_t stackBytes = kStackBytes);
    CEvaluator(const CEvaluator&) = delete;
    CEvaluator& operator=(const CEvaluator&) = delete;

    // Makes a function of the program known; names do not distinguish case. False when the name is that of
    // another function of the program, or none. What LISP assigned to the name is replaced.
    bool Define(std::wstring_view name, CLispFunction function);
    // False when there is no such function. What LISP assigned to the name itself stays.
    bool Undefine(std::wstring_view name);

    // Evaluates the expressions in order; what the last one gave, nil without any. Throws CLispError with the
    // place of the mistake in its text, after the user's *error* function has been called if there is one,
    // and SLispExit.
    CLispResult Run(const SSource& source);

    // From here on an evaluation ends with an error after so many steps; a step is the evaluation of one
    // expression or the making of one element of a list. 0: no limit.
    void SetStepLimit(std::uint64_t steps);
    // From the next evaluation on values may hold so many bytes. One that begins beyond that, because of what
    // the variables hold, gets a little more: enough to let go of it.
    void SetMemoryLimit(std::size_t bytes);

    // For built-in functions and special forms, while something runs.

    // Throws CLispError without its place; so do all that follow.
    CLispResult Evaluate(const CValue& expression);
    // The same where a value is needed: without one it is an error that names `user`.
    CValue EvaluateValue(const CValue& expression, std::wstring_view user);
    // The value of the last expression of a list, nil for none.
    CLispResult EvaluateBody(const CValue& body);
    // Calls a function by its value: a function, the name of one, or a (lambda …) list.
    CLispResult Apply(const CValue& function, std::span<const CValue> arguments);
    CValue ApplyForValue(const CValue& function, std::span<const CValue> arguments);
    // The function that (lambda PARAMETERS BODY…) or (defun NAME PARAMETERS BODY…) spells; `definition` is
    // the list from PARAMETERS on.
    CValue MakeFunction(const std::wstring& name, const CValue& definition);

    // nil when nothing was assigned. Names are in capitals.
    CValue Variable(const std::wstring& name) const;
    // Throws CLispError for T.
    void Assign(const std::wstring& name, CValue value);

    ILispHost& Host() { return m_host; }
    // Counts steps, watches the limits and asks for Escape now and then.
    void Step(std::uint64_t steps = 1);
    // Throws CLispError when the stack is nearly used up. For functions that recurse by themselves.
    void CheckStack() const;

private:
    // A function that is running, or the source around all.
    struct SFrame {
        const std::wstring* function;  // null for the source
        const std::wstring* file;
        int line;
    };
    class CFrameScope;
    class CBindings;

    bool IsOfTheProgram(const std::wstring& name) const;
    CLispResult Call(const CValue& call);
    std::shared_ptr<const SFunction> FunctionOf(const CValue& head);
    CLispResult Invoke(const SFunction& function, std::span<const CValue> arguments);
    CLispResult CallDefined(const SFunction& function, const SDefinition& definition,
                            std::span<const CValue> arguments);
    void Settle(CLispError& error);
    void CheckMemory() const;
    std::wstring Place() const;

    ILispHost& m_host;
    std::size_t m_stackBytes;
    std::uintptr_t m_stackStart = 0;
    std::size_t m_memoryLimit = kMemoryBytes;
    std::size_t m_mostHeld = 0;  // bytes, for the evaluation that runs
    std::uint64_t m_stepLimit = 0;
    std::uint64_t m_steps = 0;
    std::uint64_t m_nextPoll = 0;
    std::unordered_map<std::wstring, CValue> m_variables;
    SFrame* m_frame = nullptr;  // null while nothing runs
    bool m_inErrorHandler = false;
};
