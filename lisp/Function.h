// What stands behind a function value.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "lisp/Value.h"

class CEvaluator;

// A function of the program: gets its arguments evaluated. May throw CLispError.
using CLispFunction = std::function<CLispResult(std::span<const CValue> arguments)>;

// A form that decides itself what it evaluates: gets the list behind its name as it stands in the call.
using CSpecialForm = CLispResult (*)(CEvaluator& evaluator, const CValue& arguments);

// A function written in LISP. Parameters and locals are bound while it runs, the locals to nil.
struct SDefinition {
    std::vector<std::wstring> parameters;
    std::vector<std::wstring> locals;
    CValue body;        // a list
    std::wstring file;  // where it stands; empty: typed
    int line;
};

struct SFunction {
    std::wstring name;
    std::variant<CLispFunction, CSpecialForm, SDefinition> code;

    SFunction(std::wstring functionName, std::variant<CLispFunction, CSpecialForm, SDefinition> functionCode)
        : name(std::move(functionName)), code(std::move(functionCode)) {}
    ~SFunction();
    SFunction(const SFunction&) = delete;
    SFunction& operator=(const SFunction&) = delete;
};
