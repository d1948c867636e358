#include "Builtins.h"

#include <string>

#include "LispError.h"

namespace {

std::wstring CountText(const SBuiltin& builtin) {
    const std::wstring least = std::to_wstring(builtin.least);
    if (builtin.most == SBuiltin::kAny)
        return L"at least " + least + (builtin.least == 1 ? L" argument" : L" arguments");
    if (builtin.most == 0)
        return L"no arguments";
    const std::wstring most = std::to_wstring(builtin.most);
    const std::wstring range = builtin.least == builtin.most ? most : least + L" to " + most;
    return range + (builtin.most == 1 && builtin.least == 1 ? L" argument" : L" arguments");
}

CLispFunction Checked(CEvaluator& evaluator, const SBuiltin& builtin) {
    return [&evaluator, &builtin](std::span<const CValue> values) {
        const bool fits = values.size() >= std::size_t(builtin.least) &&
                          (builtin.most == SBuiltin::kAny || values.size() <= std::size_t(builtin.most));
        if (!fits)
            throw CLispError(std::wstring(builtin.name) + L" takes " + CountText(builtin) + L", not " +
                             std::to_wstring(values.size()));
        return builtin.run(CArguments(evaluator, builtin.name, values));
    };
}

}  // namespace

void DefineBuiltins(CEvaluator& evaluator, const CDefineBuiltin& define) {
    for (const SSpecialForm& form : ControlForms())
        define(form.name, form.run);
    for (const auto& table : {ControlFunctions(), ArithmeticFunctions(), MathFunctions(),
                              PredicateFunctions(), ListFunctions(), TextFunctions(), ConversionFunctions(),
                              GeometryFunctions(), OutputFunctions(), FileFunctions(), HostFunctions()})
        for (const SBuiltin& builtin : table)
            define(builtin.name, Checked(evaluator, builtin));
}
