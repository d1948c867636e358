// Questions to the user, messages and system variables. After an invalid answer the question is asked again.
// Enter without a text answers nil, Escape ends the evaluation.
#include <charconv>
#include <cmath>

#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "units/LinearUnits.h"

namespace tavrin::lisp {

namespace {

// The prompt and the base point of a question. Both are optional and may be given in either order.
struct Question {
    std::wstring prompt;
    std::optional<LispPoint> base;
};

Question QuestionOf(const CArguments& arguments) {
    Question question;
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        if (arguments[i].Type() == VT_STRING) {
            question.prompt = arguments.Text(i);
        } else if (!arguments[i].IsNil()) {
            question.base = arguments.Point(i);
        }
    }
    return question;
}

// The question of a function whose only argument is the prompt.
Question PromptOf(const CArguments& arguments) {
    return {arguments.Has(0) ? arguments.Text(0) : std::wstring(), std::nullopt};
}

CValue PointValue(const LispPoint& point) {
    const CValue coordinates[] = {CValue::Real(point.x), CValue::Real(point.y), CValue::Real(point.z)};
    return CValue::List(coordinates);
}

std::wstring Trimmed(const std::wstring& text) {
    const std::size_t start = text.find_first_not_of(L" \t");
    return start == std::wstring::npos ? L"" : text.substr(start, text.find_last_not_of(L" \t") - start + 1);
}

// Asks until `convert` returns a value for the answer. `needed` says what to type.
template <typename TConvert>
CValue AskUntil(const CArguments& arguments, const Question& question, EQuestion kind, const wchar_t* needed,
                TConvert convert) {
    ILispHost& host = arguments.Evaluator().Host();
    for (;;) {
        const LispAnswer answer = host.Ask(question.prompt, question.base, kind);
        if (answer.kind == ANSWER_CANCELLED) {
            throw CLispCancelled();
        }
        if (answer.kind == ANSWER_NOTHING) {
            return CValue();
        }
        if (const std::optional<CValue> value = convert(answer)) {
            return *value;
        }
        host.Write(L"'" + answer.text + L"' is not " + needed + L"\n");
    }
}

// (getpoint [BASE] [PROMPT])
LispResult GetPoint(const CArguments& arguments) {
    const Question question = QuestionOf(arguments);
    return AskUntil(arguments, question, Q_POINT, L"a point: click in the drawing or type X,Y",
                    [](const LispAnswer& answer) -> std::optional<CValue> {
                        return answer.kind == ANSWER_POINT ? std::optional(PointValue(answer.point))
                                                           : std::nullopt;
                    });
}

// (getdist [BASE] [PROMPT]): typed, or the distance to a point from BASE or from another point, asked next.
LispResult GetDistance(const CArguments& arguments) {
    Question question = QuestionOf(arguments);
    constexpr wchar_t kNeeded[] = L"a distance: click in the drawing or type a length";
    const auto convert = [&](const LispAnswer& answer) -> std::optional<CValue> {
        if (answer.kind == ANSWER_TEXT) {
            const auto length = units::ParseLinear(answer.text);
            return length ? std::optional(CValue::Real(*length)) : std::nullopt;
        }
        if (!question.base) {
            return PointValue(answer.point);
        }
        const LispPoint& base = *question.base;
        return CValue::Real(
            std::hypot(answer.point.x - base.x, answer.point.y - base.y, answer.point.z - base.z));
    };
    const CValue first = AskUntil(arguments, question, Q_DISTANCE, kNeeded, convert);
    if (first.Type() != VT_PAIR) {
        return first;
    }
    question = {L"Second point: ", ToPoint(first)};
    return AskUntil(arguments, question, Q_DISTANCE, kNeeded, convert);
}

// (getreal [PROMPT])
LispResult GetReal(const CArguments& arguments) {
    return AskUntil(arguments, PromptOf(arguments), Q_TEXT, L"a number: type one such as 12.5",
                    [](const LispAnswer& answer) -> std::optional<CValue> {
                        const auto number = units::ParseLinear(answer.text);
                        return number ? std::optional(CValue::Real(*number)) : std::nullopt;
                    });
}

// (getint [PROMPT])
LispResult GetInteger(const CArguments& arguments) {
    return AskUntil(arguments, PromptOf(arguments), Q_TEXT, L"a whole number of 32 bits: type one such as 12",
                    [](const LispAnswer& answer) -> std::optional<CValue> {
                        std::wstring text = Trimmed(answer.text);
                        if (text.starts_with(L'+') && !text.starts_with(L"+-")) {
                            text.erase(0, 1);
                        }
                        std::string digits;
                        for (const wchar_t c : text) {
                            digits += c <= 0x7F ? static_cast<char>(c) : '?';
                        }
                        std::int32_t number = 0;
                        const char* const end = digits.data() + digits.size();
                        const auto read = std::from_chars(digits.data(), end, number);
                        if (read.ec != std::errc() || read.ptr != end) {
                            return std::nullopt;
                        }
                        return CValue::Integer(number);
                    });
}

// (getstring [SPACES] [PROMPT]): the line as it was typed, whether spaces are wanted or not; "" for a plain
// Enter.
LispResult GetText(const CArguments& arguments) {
    Question question;
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        if (arguments[i].Type() == VT_STRING || i == 1) {
            question.prompt = arguments.Text(i);
        }
    }
    const CValue text = AskUntil(arguments, question, Q_TEXT, L"a string", [](const LispAnswer& answer) {
        return std::optional(CValue::String(answer.text));
    });
    return text.IsNil() ? CValue::String(L"") : text;
}

LispResult Alert(const CArguments& arguments) {
    arguments.Evaluator().Host().Alert(arguments.Text(0));
    return CValue();
}

LispResult GetVariable(const CArguments& arguments) {
    return arguments.Evaluator().Host().GetVariable(UpperCase(arguments.Text(0)));
}

LispResult SetVariable(const CArguments& arguments) {
    arguments.Evaluator().Host().SetVariable(UpperCase(arguments.Text(0)), arguments[1]);
    return arguments[1];
}

constexpr Builtin kFunctions[] = {
    {L"GETPOINT", 0, 2, GetPoint},  {L"GETDIST", 0, 2, GetDistance}, {L"GETREAL", 0, 1, GetReal},
    {L"GETINT", 0, 1, GetInteger},  {L"GETSTRING", 0, 2, GetText},   {L"ALERT", 1, 1, Alert},
    {L"GETVAR", 1, 1, GetVariable}, {L"SETVAR", 2, 2, SetVariable},
};

}  // namespace

std::span<const Builtin> HostFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
