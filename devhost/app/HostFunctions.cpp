#include "devhost/app/HostFunctions.h"

#include "devhost/app/LoadedTexts.h"
#include "lisp/Arguments.h"

namespace devhost {

namespace {

constexpr int kHighestText = 0xFFFF;

lisp::LispResult Text(const lisp::CArguments& arguments) {
    const std::int32_t number = arguments.Integer(0);
    if (number < 0 || number > kHighestText) {
        arguments.Refuse(0, L"a number from 0 to 65535");
    }
    const std::wstring text = LoadText(static_cast<unsigned>(number));
    return text.empty() ? lisp::CValue() : lisp::CValue::String(text);
}

void Define(lisp::CEvaluator& evaluator, const wchar_t* name, int count,
            std::function<lisp::LispResult(const lisp::CArguments&)> run) {
    evaluator.Define(name, lisp::TakeArguments(evaluator, name, count, count, std::move(run)));
}

}  // namespace

void DefineHostFunctions(lisp::CEvaluator& evaluator, CMainWindow& window) {
    Define(evaluator, L"DRAW-FIT", 0, [&window](const lisp::CArguments&) -> lisp::LispResult {
        window.FitDrawing();
        return lisp::CValue::True();
    });
    Define(evaluator, L"RES-TEXT", 1, Text);
}

}  // namespace devhost
