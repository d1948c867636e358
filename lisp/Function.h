// The code of a function value.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "lisp/Value.h"

namespace tavrin::lisp {

class CEvaluator;

// A native function, called with evaluated arguments. May throw CLispError.
using NativeFunction = std::function<LispResult(std::span<const CValue> arguments)>;

// A special form, called with its unevaluated arguments.
using SpecialFormCode = LispResult (*)(CEvaluator& evaluator, const CValue& arguments);

// A function written in LISP. Parameters and locals are bound while it runs, the locals to nil.
struct Definition {
    std::vector<std::wstring> parameters;
    std::vector<std::wstring> locals;
    CValue body;        // a list
    std::wstring file;  // of the source; empty: typed
    int line;
};

struct FunctionObject {
    std::wstring name;
    std::variant<NativeFunction, SpecialFormCode, Definition> code;

    FunctionObject(std::wstring functionName,
                   std::variant<NativeFunction, SpecialFormCode, Definition> functionCode)
        : name(std::move(functionName)), code(std::move(functionCode)) {}
    ~FunctionObject();
    FunctionObject(const FunctionObject&) = delete;
    FunctionObject& operator=(const FunctionObject&) = delete;
};

}  // namespace tavrin::lisp
