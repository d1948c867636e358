// Functions on files: opening, reading and closing, finding, and loading LISP.
#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "lisp/LispFile.h"
#include "lisp/Source.h"

namespace tavrin::lisp {

namespace {

// nil when the file cannot be opened.
LispResult Open(const CArguments& arguments) {
    const std::wstring& mode = arguments.Text(1);
    if (mode != L"r" && mode != L"w" && mode != L"a") {
        arguments.Refuse(1, L"\"r\", \"w\" or \"a\"");
    }
    auto file = arguments.Evaluator().Host().OpenFile(arguments.Text(0), mode == L"r"   ? FM_READ
                                                                         : mode == L"w" ? FM_WRITE
                                                                                        : FM_APPEND);
    return file ? CValue::File(std::move(file)) : CValue();
}

LispResult Close(const CArguments& arguments) {
    arguments.WithFile(0, [](CLispFile& file) { file.Close(); });
    return CValue();
}

// Reads a line: from the file, nil at its end; or, if no file is given, from the user. nil is not accepted as
// a file: a script whose file could not be opened would otherwise wait for input.
LispResult ReadLine(const CArguments& arguments) {
    if (arguments.Has(0)) {
        std::optional<std::wstring> line;
        arguments.WithFile(0, [&](CLispFile& file) { line = file.ReadLine(); });
        return line ? CValue::String(*std::move(line)) : CValue();
    }
    const LispAnswer answer = arguments.Evaluator().Host().Ask(L"", std::nullopt, Q_TEXT);
    if (answer.kind == ANSWER_CANCELLED) {
        throw CLispCancelled();
    }
    return CValue::String(answer.text);
}

// The code of the next character, nil at the end. CR LF counts as one character, 10.
LispResult ReadCharacter(const CArguments& arguments) {
    std::optional<wchar_t> character;
    arguments.WithFile(0, [&](CLispFile& file) { character = file.ReadCharacter(); });
    return character ? CValue::Integer(static_cast<std::int32_t>(*character)) : CValue();
}

LispResult FindFile(const CArguments& arguments) {
    const auto path = arguments.Evaluator().Host().FindFile(arguments.Text(0));
    return path ? CValue::String(*path) : CValue();
}

bool HasExtension(const std::wstring& name) {
    const std::size_t separator = name.find_last_of(L"/\\");
    return name.find(L'.', separator == std::wstring::npos ? 0 : separator) != std::wstring::npos;
}

// (load NAME [OTHERWISE]): the value of the last expression in the file; OTHERWISE when there is no such
// file. Nothing is evaluated before the whole file has been read.
LispResult Load(const CArguments& arguments) {
    CEvaluator& evaluator = arguments.Evaluator();
    const std::wstring& given = arguments.Text(0);
    const std::wstring name = HasExtension(given) ? given : given + L".lsp";
    const auto path = evaluator.Host().FindFile(name);
    if (!path && arguments.Has(1)) {
        return arguments[1];
    }
    if (!path) {
        arguments.Fail(L"the file '" + name + L"' was not found: check its name and the search folders");
    }
    evaluator.CheckStack();
    return evaluator.Run(ReadSourceFile(*path, name));
}

constexpr Builtin kFunctions[] = {
    {L"OPEN", 2, 2, Open},          {L"CLOSE", 1, 1, Close},
    {L"READ-LINE", 0, 1, ReadLine}, {L"READ-CHAR", 1, 1, ReadCharacter},
    {L"FINDFILE", 1, 1, FindFile},  {L"LOAD", 1, 2, Load},
};

}  // namespace

std::span<const Builtin> FileFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
