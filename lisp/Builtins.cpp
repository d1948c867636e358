#include "lisp/Builtins.h"

namespace tavrin::lisp {

void DefineBuiltins(CEvaluator& evaluator, const DefineBuiltin& define) {
    for (const SpecialForm& form : ControlForms()) {
        define(form.name, form.run);
    }
    for (const auto& table : {ControlFunctions(), ArithmeticFunctions(), MathFunctions(),
                              PredicateFunctions(), ListFunctions(), TextFunctions(), ConversionFunctions(),
                              GeometryFunctions(), OutputFunctions(), FileFunctions(), HostFunctions()}) {
        for (const Builtin& builtin : table) {
            define(builtin.name,
                   TakeArguments(evaluator, builtin.name, builtin.least, builtin.most, builtin.run));
        }
    }
}

}  // namespace tavrin::lisp
