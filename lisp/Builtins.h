// The functions and special forms that every evaluator knows, in tables by role.
#pragma once

#include <functional>
#include <span>

#include "lisp/Arguments.h"
#include "lisp/Function.h"

// A function of a table, with the counts of arguments that TakeArguments allows.
struct SBuiltin {
    const wchar_t* name;  // in capitals
    int least;
    int most;
    CLispResult (*run)(const CArguments& arguments);
};

struct SSpecialForm {
    const wchar_t* name;
    CSpecialForm run;
};

std::span<const SSpecialForm> ControlForms();
std::span<const SBuiltin> ControlFunctions();
std::span<const SBuiltin> ArithmeticFunctions();
std::span<const SBuiltin> MathFunctions();
std::span<const SBuiltin> PredicateFunctions();
std::span<const SBuiltin> ListFunctions();
std::span<const SBuiltin> TextFunctions();
std::span<const SBuiltin> ConversionFunctions();
std::span<const SBuiltin> GeometryFunctions();
std::span<const SBuiltin> OutputFunctions();
std::span<const SBuiltin> FileFunctions();
std::span<const SBuiltin> HostFunctions();

// Gives `define` the name and code of each.
using CDefineBuiltin =
    std::function<void(const wchar_t* name, std::variant<CLispFunction, CSpecialForm, SDefinition> code)>;
void DefineBuiltins(CEvaluator& evaluator, const CDefineBuiltin& define);
