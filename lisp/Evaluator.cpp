#include "lisp/Evaluator.h"

#include <algorithm>
#include <deque>
#include <new>

#include "lisp/Builtins.h"
#include "lisp/Printer.h"
#include "lisp/Reader.h"

namespace tavrin::lisp {

namespace {

constexpr std::uint64_t kStepsBetweenPolls = 4096;
// An *error* function may exceed the limit by this, since it runs where the error happened.
constexpr std::size_t kStackForErrorHandler = std::size_t{256} * 1024;

// An *error* function, and an evaluation that begins above the limit, may exceed it by this fraction of it:
// an eighth.
constexpr std::size_t kReserve = 8;
constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;

// How many calls of a long chain an error names, from its start and from its end.
constexpr std::size_t kOuterCalls = 3;
constexpr std::size_t kInnerCalls = 5;

constexpr wchar_t kTooDeep[] = L"calls are nested too deep: does the recursion come to an end?";

// Not the address of a local, which the address sanitizer may keep elsewhere.
std::uintptr_t StackPointer() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

std::wstring ArgumentCount(std::size_t count) {
    return std::to_wstring(count) + (count == 1 ? L" argument" : L" arguments");
}

// A function as LISP itself can build one: (lambda PARAMETERS BODY…).
bool IsLambda(const CValue& value) {
    return value.Type() == VT_PAIR && value.Car().IsSymbol(L"LAMBDA");
}

// The parameters and, after the slash, the locals of a parameter list.
Definition ReadParameters(const std::wstring& name, const CValue& list) {
    Definition definition;
    std::vector<std::wstring>* names = &definition.parameters;
    const CValue* rest = &list;
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        const CValue& parameter = rest->Car();
        if (parameter.Type() != VT_SYMBOL || parameter.IsSymbol(L"T")) {
            throw CLispError(name + L" cannot have " + Excerpt(parameter) + L" as a parameter");
        }
        if (parameter.IsSymbol(L"/")) {
            if (names == &definition.locals) {
                throw CLispError(name + L" has more than one slash in its list of parameters");
            }
            names = &definition.locals;
        } else {
            names->push_back(parameter.AsSymbol());
        }
    }
    if (!rest->IsNil()) {
        throw CLispError(name + L" has " + Excerpt(list) + L" instead of a list of parameters");
    }
    return definition;
}

CValue DefinedFunction(const std::wstring& name, const CValue& definition, const std::wstring& file,
                       int line) {
    if (definition.Type() != VT_PAIR) {
        throw CLispError(name + L" has no list of parameters");
    }
    Definition code = ReadParameters(name, definition.Car());
    code.body = definition.Cdr();
    code.file = file;
    code.line = line;
    return CValue::Function(std::make_shared<FunctionObject>(name, std::move(code)));
}

}  // namespace

// Enters a function or a source, for the location of errors.
class CEvaluator::CFrameScope {
public:
    CFrameScope(CEvaluator& evaluator, Frame frame)
        : m_evaluator(evaluator), m_before(evaluator.m_frame), m_frame(frame) {
        m_frame.caller = m_before;
        evaluator.m_frame = &m_frame;
    }
    ~CFrameScope() { m_evaluator.m_frame = m_before; }
    CFrameScope(const CFrameScope&) = delete;
    CFrameScope& operator=(const CFrameScope&) = delete;

private:
    CEvaluator& m_evaluator;
    Frame* m_before;
    Frame m_frame;
};

// Binds names to values during its lifetime.
class CEvaluator::CBindings {
public:
    explicit CBindings(CEvaluator& evaluator) : m_evaluator(evaluator) {}
    ~CBindings() {
        while (!m_hidden.empty()) {
            auto& [name, value] = m_hidden.back();
            m_evaluator.m_variables[*name] = std::move(value);
            m_hidden.pop_back();
        }
    }
    CBindings(const CBindings&) = delete;
    CBindings& operator=(const CBindings&) = delete;

    // `name` must outlive the bindings.
    void Bind(const std::wstring& name, CValue value) {
        CValue& slot = m_evaluator.m_variables[name];
        m_hidden.emplace_back(&name, slot);
        slot = std::move(value);
    }

private:
    CEvaluator& m_evaluator;
    std::vector<std::pair<const std::wstring*, CValue>> m_hidden;
};

CEvaluator::CEvaluator(ILispHost& host, std::size_t stackBytes) : m_host(host), m_stackBytes(stackBytes) {
    m_variables[L"T"] = CValue::True();
    DefineBuiltins(*this, [this](const wchar_t* name, auto code) {
        m_variables[name] = CValue::Function(std::make_shared<FunctionObject>(name, std::move(code)));
    });
}

bool CEvaluator::Define(std::wstring_view name, NativeFunction function) {
    const std::wstring upperCase = UpperCase(name);
    if (!IsSymbolName(name) || IsNative(upperCase)) {
        return false;
    }
    m_variables[upperCase] =
        CValue::Function(std::make_shared<FunctionObject>(upperCase, std::move(function)));
    return true;
}

bool CEvaluator::Undefine(std::wstring_view name) {
    const std::wstring upperCase = UpperCase(name);
    return IsNative(upperCase) && m_variables.erase(upperCase) != 0;
}

// Whether the value of the name is the native function of that name. LISP may have assigned another value,
// such as another native function.
bool CEvaluator::IsNative(const std::wstring& name) const {
    const CValue value = Variable(name);
    return value.Type() == VT_FUNCTION && value.AsFunction()->name == name &&
           !std::holds_alternative<Definition>(value.AsFunction()->code);
}

LispResult CEvaluator::Run(const Source& source) {
    const bool outermost = m_frame == nullptr;
    const CFrameScope frame(*this, {nullptr, &source.file, 0});
    if (outermost) {
        m_stackStart = StackPointer();
        m_maxHeld = std::max(m_memoryLimit, CValue::HeldBytes() + m_memoryLimit / kReserve);
        m_steps = 0;
    }
    try {
        LispResult result = CValue();
        for (const CValue& expression : source.expressions) {
            result = Evaluate(expression);
        }
        return result;
    } catch (CLispError& error) {
        Settle(error);
        throw;
    } catch (const std::bad_alloc&) {
        CLispError error(L"out of memory");
        Settle(error);
        throw CLispError(error);
    }
}

void CEvaluator::SetMemoryLimit(std::size_t bytes) {
    m_memoryLimit = bytes;
}

LispResult CEvaluator::Evaluate(const CValue& expression) {
    Step();
    switch (expression.Type()) {
        case VT_SYMBOL:
            return Variable(expression.AsSymbol());
        case VT_PAIR:
            return Call(expression);
        default:
            return expression;
    }
}

CValue CEvaluator::EvaluateValue(const CValue& expression, std::wstring_view user) {
    LispResult result = Evaluate(expression);
    if (!result) {
        throw CLispError(Excerpt(expression) + L", an argument of " + std::wstring(user) +
                         L", has no result");
    }
    return *std::move(result);
}

LispResult CEvaluator::EvaluateBody(const CValue& body) {
    LispResult result = CValue();
    for (const CValue* rest = &body; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        result = Evaluate(rest->Car());
    }
    return result;
}

LispResult CEvaluator::Call(const CValue& call) {
    Frame& frame = *m_frame;
    const int line = call.Line().line != 0 ? call.Line().line : frame.line;
    frame.line = line;
    CheckStack();
    const auto function = FunctionOf(call.Car());
    if (const auto* special = std::get_if<SpecialFormCode>(&function->code)) {
        return (*special)(*this, call.Cdr());
    }

    std::vector<CValue> arguments;
    const CValue* rest = &call.Cdr();
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        arguments.push_back(EvaluateValue(rest->Car(), function->name));
    }
    if (!rest->IsNil()) {
        throw CLispError(L"the call of " + function->name + L" ends in a dot and " + Excerpt(*rest));
    }
    frame.line = line;
    return Invoke(*function, arguments);
}

std::shared_ptr<const FunctionObject> CEvaluator::FunctionOf(const CValue& head) {
    const CValue function = head.Type() == VT_SYMBOL ? Variable(head.AsSymbol()) : head;
    if (function.Type() == VT_FUNCTION) {
        return function.AsFunction();
    }
    if (IsLambda(function)) {
        return MakeQuotedLambda(function).AsFunction();
    }
    if (head.Type() != VT_SYMBOL) {
        throw CLispError(Excerpt(head) + L" is not the name of a function");
    }
    if (function.IsNil()) {
        throw CLispError(L"the function " + head.AsSymbol() +
                         L" is not defined: check its name and whether the plug-in defines it");
    }
    throw CLispError(head.AsSymbol() + L" is not a function: its value is " + Excerpt(function));
}

CValue CEvaluator::MakeFunction(const std::wstring& name, const CValue& definition) {
    return DefinedFunction(name, definition, *m_frame->file, m_frame->line);
}

// A list may be called far from where it stands.
CValue CEvaluator::MakeQuotedLambda(const CValue& list) {
    const SourceLine line = list.Line();
    return line.line != 0 ? DefinedFunction(L"LAMBDA", list.Cdr(), SourceFileName(line.file), line.line)
                          : MakeFunction(L"LAMBDA", list.Cdr());
}

LispResult CEvaluator::Apply(const CValue& function, std::span<const CValue> arguments) {
    CheckStack();
    return Invoke(*FunctionOf(function), arguments);
}

CValue CEvaluator::ApplyForValue(const CValue& function, std::span<const CValue> arguments) {
    const auto code = FunctionOf(function);
    LispResult result = Invoke(*code, arguments);
    if (!result) {
        throw CLispError(L"a call of " + code->name + L" has no result");
    }
    return *std::move(result);
}

// The caller keeps `function` alive: its name may be reassigned while it runs.
LispResult CEvaluator::Invoke(const FunctionObject& function, std::span<const CValue> arguments) {
    if (const auto* definition = std::get_if<Definition>(&function.code)) {
        return CallDefined(function, *definition, arguments);
    }
    if (const auto* native = std::get_if<NativeFunction>(&function.code)) {
        return (*native)(arguments);
    }
    std::vector<CValue> quoted;
    for (const CValue& argument : arguments) {
        const CValue quote[] = {CValue::Symbol(L"QUOTE"), argument};
        quoted.push_back(CValue::List(quote));
    }
    return std::get<SpecialFormCode>(function.code)(*this, CValue::List(quoted));
}

LispResult CEvaluator::CallDefined(const FunctionObject& function, const Definition& definition,
                                   std::span<const CValue> arguments) {
    if (arguments.size() != definition.parameters.size()) {
        throw CLispError(function.name + L" takes " + ArgumentCount(definition.parameters.size()) +
                         L", not " + std::to_wstring(arguments.size()));
    }
    CBindings bindings(*this);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        bindings.Bind(definition.parameters[i], arguments[i]);
    }
    for (const std::wstring& local : definition.locals) {
        bindings.Bind(local, {});
    }
    const CFrameScope frame(*this, {&function.name, &definition.file, definition.line});
    try {
        return EvaluateBody(definition.body);
    } catch (CLispError& error) {
        Settle(error);
        throw;
    }
}

// Called where an error is caught first. The variables still have the values that they had when it happened,
// so an *error* function sees the locals of the function that failed, and may itself be one of them.
void CEvaluator::Settle(CLispError& error) {
    if (error.IsSettled()) {
        return;
    }
    error.SetLocation(Location());
    error.SetSettled();
    const CValue handler = Variable(L"*ERROR*");
    if (m_inErrorHandler || handler.IsNil()) {
        return;
    }
    struct Handling {
        explicit Handling(bool& flag) : inHandler(flag) { inHandler = true; }
        ~Handling() { inHandler = false; }
        bool& inHandler;
    } const handling(m_inErrorHandler);
    const CValue text = CValue::String(error.Text());
    try {
        Apply(handler, {&text, 1});
    } catch (CLispError& another) {
        Settle(another);
        throw;
    }
    error.SetHandled();
}

// The chain of calls, from the outermost one, each with the line where it stands.
std::wstring CEvaluator::Location() const {
    std::deque<std::wstring> calls;
    std::size_t left = 0;  // calls in the middle of a long chain
    for (const Frame* frame = m_frame; frame != nullptr; frame = frame->caller) {
        // Typed text that calls a function is in sight anyway.
        const bool isTyped = frame->function == nullptr && frame->file->empty();
        if (frame->line == 0 || (isTyped && !calls.empty())) {
            continue;
        }
        const std::wstring line = std::to_wstring(frame->line);
        calls.push_front((frame->file->empty() ? L"line " : *frame->file + L':') + line +
                         (frame->function != nullptr ? L" in " + *frame->function : L""));
        if (calls.size() > kInnerCalls + kOuterCalls) {
            calls.erase(calls.begin() + kOuterCalls);
            ++left;
        }
    }
    std::wstring chain;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        chain += (chain.empty() ? L"" : L" > ") + calls[i];
        if (left != 0 && i + 1 == kOuterCalls) {
            chain += L" > (" + std::to_wstring(left) + (left == 1 ? L" more call)" : L" more calls)");
        }
    }
    return chain;
}

CValue CEvaluator::Variable(const std::wstring& name) const {
    const auto found = m_variables.find(name);
    return found != m_variables.end() ? found->second : CValue();
}

bool CEvaluator::IsFunction(const std::wstring& name) const {
    const CValue value = Variable(name);
    return value.Type() == VT_FUNCTION || IsLambda(value);
}

void CEvaluator::Assign(const std::wstring& name, CValue value) {
    if (name == L"T") {
        throw CLispError(L"T cannot be assigned to");
    }
    m_variables[name] = std::move(value);
}

void CEvaluator::Step(std::uint64_t steps) {
    CheckMemory();
    m_steps += steps;
    if (m_steps < kStepsBetweenPolls) {
        return;
    }
    m_steps = 0;
    if (m_host.IsEscapePressed()) {
        throw CLispCancelled();
    }
}

void CEvaluator::CheckMemory() const {
    if (CValue::HeldBytes() > m_maxHeld + (m_inErrorHandler ? m_memoryLimit / kReserve : 0)) {
        throw CLispError(L"the values take more than " + std::to_wstring(m_maxHeld / kMegabyte) +
                         L" MB of memory: does a loop collect them without end?");
    }
}

void CEvaluator::CheckStack() const {
    const std::uintptr_t here = StackPointer();
    const std::size_t used = m_stackStart > here ? m_stackStart - here : 0;
    if (used > m_stackBytes + (m_inErrorHandler ? kStackForErrorHandler : 0)) {
        throw CLispError(kTooDeep);
    }
}

}  // namespace tavrin::lisp
