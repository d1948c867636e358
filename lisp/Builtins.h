// The built-in functions and special forms, in tables by topic.
#pragma once

#include <functional>
#include <span>

#include "lisp/Arguments.h"
#include "lisp/Function.h"

namespace tavrin::lisp {

// A function of a table, with the counts of arguments that TakeArguments allows.
struct Builtin {
    const wchar_t* name;  // in capitals
    int least;
    int most;
    LispResult (*run)(const CArguments& arguments);
};

struct SpecialForm {
    const wchar_t* name;
    SpecialFormCode run;
};

std::span<const SpecialForm> ControlForms();
std::span<const Builtin> ControlFunctions();
std::span<const Builtin> ArithmeticFunctions();
std::span<const Builtin> MathFunctions();
std::span<const Builtin> PredicateFunctions();
std::span<const Builtin> ListFunctions();
std::span<const Builtin> TextFunctions();
std::span<const Builtin> ConversionFunctions();
std::span<const Builtin> GeometryFunctions();
std::span<const Builtin> OutputFunctions();
std::span<const Builtin> FileFunctions();
std::span<const Builtin> HostFunctions();

// Calls `define` with the name and code of each.
using DefineBuiltin =
    std::function<void(const wchar_t* name, std::variant<NativeFunction, SpecialFormCode, Definition> code)>;
void DefineBuiltins(CEvaluator& evaluator, const DefineBuiltin& define);

}  // namespace tavrin::lisp
