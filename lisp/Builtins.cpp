#include "lisp/Builtins.h"

void DefineBuiltins(CEvaluator& evaluator, const CDefineBuiltin& define) {
    for (const SSpecialForm& form : ControlForms()) {
        define(form.name, form.run);
    }
    for (const auto& table : {ControlFunctions(), ArithmeticFunctions(), MathFunctions(),
                              PredicateFunctions(), ListFunctions(), TextFunctions(), ConversionFunctions(),
                              GeometryFunctions(), OutputFunctions(), FileFunctions(), HostFunctions()}) {
        for (const SBuiltin& builtin : table) {
            define(builtin.name,
                   TakeArguments(evaluator, builtin.name, builtin.least, builtin.most, builtin.run));
        }
    }
}
