#include "Evaluator.h"

#include <vector>

#include "Printer.h"
#include "Reader.h"

bool CEvaluator::Define(std::wstring_view name, CLispFunction function) {
    const std::wstring upperCase = UpperCase(name);
    if (!IsSymbolName(name) || upperCase == L"QUOTE")
        return false;
    return m_functions.emplace(upperCase, std::move(function)).second;
}

bool CEvaluator::Undefine(std::wstring_view name) {
    return m_functions.erase(UpperCase(name)) != 0;
}

CLispResult CEvaluator::Evaluate(const CValue& expression) const {
    if (expression.Type() == VT_PAIR)
        return Call(expression);
    if (expression.Type() == VT_SYMBOL && !expression.IsSymbol(L"T"))
        throw CLispError(L"the symbol " + expression.AsSymbol() + L" has no value");
    return expression;
}

CLispResult CEvaluator::Call(const CValue& call) const {
    if (call.Car().Type() != VT_SYMBOL)
        throw CLispError(Print(call.Car()) + L" is not the name of a function");
    const std::wstring& name = call.Car().AsSymbol();
    if (name == L"QUOTE")
        return Quote(call.Cdr());
    const auto found = m_functions.find(name);
    if (found == m_functions.end())
        throw CLispError(L"the function " + name +
                         L" is not known: check its name and whether the plug-in defines it");

    std::vector<CValue> arguments;
    const CValue* rest = &call.Cdr();
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        const CLispResult argument = Evaluate(rest->Car());
        if (!argument)
            throw CLispError(Print(rest->Car()) + L", an argument of " + name + L", has no result");
        arguments.push_back(*argument);
    }
    if (!rest->IsNil())
        throw CLispError(L"the call of " + name + L" ends in a dot and " + Print(*rest));
    // A copy: the function may take itself out of the table.
    const CLispFunction function = found->second;
    return function(arguments);
}

CValue CEvaluator::Quote(const CValue& arguments) {
    if (arguments.Type() != VT_PAIR || !arguments.Cdr().IsNil())
        throw CLispError(L"QUOTE takes one argument");
    return arguments.Car();
}
