// Printing to the host's output or to a file.
#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace tavrin::lisp {

namespace {

// To the file in argument `index`, or to the host when it is missing or nil.
void WriteTo(const CArguments& arguments, std::size_t index, const std::wstring& text) {
    if (arguments.Has(index) && !arguments[index].IsNil()) {
        arguments.WithFile(index, [&](CLispFile& file) { file.Write(text); });
    } else {
        arguments.Evaluator().Host().Write(text);
    }
}

// A symbol without a name: a routine that ends with it shows no result.
CValue Silence() {
    return CValue::Symbol(L"");
}

LispResult PrintDisplayed(const CArguments& arguments) {
    if (arguments.Count() == 0) {
        return Silence();
    }
    WriteTo(arguments, 1, Display(arguments[0]));
    return arguments[0];
}

LispResult PrintReadable(const CArguments& arguments) {
    if (arguments.Count() == 0) {
        return Silence();
    }
    WriteTo(arguments, 1, Print(arguments[0]));
    return arguments[0];
}

// On a line of its own.
LispResult PrintLine(const CArguments& arguments) {
    if (arguments.Count() == 0) {
        return Silence();
    }
    WriteTo(arguments, 1, L'\n' + Print(arguments[0]) + L' ');
    return arguments[0];
}

LispResult Prompt(const CArguments& arguments) {
    arguments.Evaluator().Host().Write(arguments.Text(0));
    return CValue();
}

LispResult EndLine(const CArguments& arguments) {
    arguments.Evaluator().Host().Write(L"\n");
    return CValue();
}

LispResult WriteLine(const CArguments& arguments) {
    WriteTo(arguments, 1, arguments.Text(0) + L'\n');
    return arguments[0];
}

LispResult WriteCharacter(const CArguments& arguments) {
    const std::int32_t code = arguments.Integer(0);
    if (code < 1 || code > 0xFFFF) {
        arguments.Refuse(0, L"a code from 1 to 65535");
    }
    WriteTo(arguments, 1, std::wstring(1, static_cast<wchar_t>(code)));
    return arguments[0];
}

constexpr Builtin kFunctions[] = {
    {L"PRINC", 0, 2, PrintDisplayed},
    {L"PRIN1", 0, 2, PrintReadable},
    {L"PRINT", 0, 2, PrintLine},
    {L"PROMPT", 1, 1, Prompt},
    {L"TERPRI", 0, 0, EndLine},
    {L"WRITE-LINE", 1, 2, WriteLine},
    {L"WRITE-CHAR", 1, 2, WriteCharacter},
};

}  // namespace

std::span<const Builtin> OutputFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
