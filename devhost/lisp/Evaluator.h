// Evaluates LISP values with the functions of a table.
//
// Numbers, texts, nil and T are their own value; (quote x) is x; a list is a call of the function that
// its first element names, with its other elements evaluated as arguments. There are no variables.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "LispError.h"
#include "Value.h"

// What an evaluation gave; nothing when a function set no result.
using CLispResult = std::optional<CValue>;

// May throw CLispError.
using CLispFunction = std::function<CLispResult(std::span<const CValue> arguments)>;

class CEvaluator {
public:
    // Makes `function` known; names do not distinguish case. False when the name is taken or is none.
    bool Define(std::wstring_view name, CLispFunction function);
    // False when there is no such function.
    bool Undefine(std::wstring_view name);

    // Throws CLispError, which names the function or symbol that it is about.
    CLispResult Evaluate(const CValue& expression) const;

private:
    CLispResult Call(const CValue& call) const;
    static CValue Quote(const CValue& arguments);

    std::map<std::wstring, CLispFunction> m_functions;
};
