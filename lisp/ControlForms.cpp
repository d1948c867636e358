// The special forms for assignment, definition, branches and loops, and the functions that evaluate and call.
#include "lisp/Builtins.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace tavrin::lisp {

namespace {

// Whether `list` is a proper list with at least `least` elements.
bool HasElements(const CValue& list, int least) {
    const CValue* rest = &list;
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        --least;
    }
    return rest->IsNil() && least <= 0;
}

void Require(bool holds, const wchar_t* usage) {
    if (!holds) {
        throw CLispError(std::wstring(L"write ") + usage);
    }
}

LispResult Quote(CEvaluator&, const CValue& arguments) {
    if (arguments.Type() != VT_PAIR || !arguments.Cdr().IsNil()) {
        throw CLispError(L"QUOTE takes one argument");
    }
    return arguments.Car();
}

// (function F) quotes a function; a lambda becomes a function at once.
LispResult FunctionForm(CEvaluator& evaluator, const CValue& arguments) {
    LispResult quoted = Quote(evaluator, arguments);
    if (quoted->Type() == VT_PAIR && quoted->Car().IsSymbol(L"LAMBDA")) {
        return evaluator.MakeFunction(L"LAMBDA", quoted->Cdr());
    }
    return quoted;
}

LispResult Setq(CEvaluator& evaluator, const CValue& arguments) {
    constexpr wchar_t kUsage[] = L"(setq NAME VALUE ...)";
    CValue value;
    for (const CValue* rest = &arguments; !rest->IsNil(); rest = &rest->Cdr().Cdr()) {
        Require(rest->Type() == VT_PAIR && rest->Cdr().Type() == VT_PAIR, kUsage);
        const CValue& name = rest->Car();
        if (name.Type() != VT_SYMBOL) {
            throw CLispError(L"SETQ cannot assign to " + Excerpt(name) + L": it is not a symbol");
        }
        value = evaluator.EvaluateValue(rest->Cdr().Car(), L"SETQ");
        evaluator.Assign(name.AsSymbol(), value);
    }
    return value;
}

LispResult Defun(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 2) && arguments.Car().Type() == VT_SYMBOL,
            L"(defun NAME (PARAMETERS / LOCALS) BODY ...)");
    const CValue& name = arguments.Car();
    evaluator.Assign(name.AsSymbol(), evaluator.MakeFunction(name.AsSymbol(), arguments.Cdr()));
    return name;
}

LispResult Lambda(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 1), L"(lambda (PARAMETERS / LOCALS) BODY ...)");
    return evaluator.MakeFunction(L"LAMBDA", arguments);
}

LispResult If(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 2) && !HasElements(arguments, 4), L"(if CONDITION THEN [ELSE])");
    const CValue& branches = arguments.Cdr();
    if (!evaluator.EvaluateValue(arguments.Car(), L"IF").IsNil()) {
        return evaluator.Evaluate(branches.Car());
    }
    return branches.Cdr().IsNil() ? CValue() : evaluator.Evaluate(branches.Cdr().Car());
}

LispResult Cond(CEvaluator& evaluator, const CValue& arguments) {
    constexpr wchar_t kUsage[] = L"(cond (CONDITION BODY ...) ...)";
    Require(HasElements(arguments, 0), kUsage);
    for (const CValue* rest = &arguments; !rest->IsNil(); rest = &rest->Cdr()) {
        const CValue& clause = rest->Car();
        Require(HasElements(clause, 1), kUsage);
        const CValue condition = evaluator.EvaluateValue(clause.Car(), L"COND");
        if (!condition.IsNil()) {
            return clause.Cdr().IsNil() ? condition : evaluator.EvaluateBody(clause.Cdr());
        }
    }
    return CValue();
}

LispResult And(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 0), L"(and CONDITION ...)");
    for (const CValue* rest = &arguments; !rest->IsNil(); rest = &rest->Cdr()) {
        if (evaluator.EvaluateValue(rest->Car(), L"AND").IsNil()) {
            return CValue();
        }
    }
    return CValue::True();
}

LispResult Or(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 0), L"(or CONDITION ...)");
    for (const CValue* rest = &arguments; !rest->IsNil(); rest = &rest->Cdr()) {
        if (!evaluator.EvaluateValue(rest->Car(), L"OR").IsNil()) {
            return CValue::True();
        }
    }
    return CValue();
}

LispResult While(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 1), L"(while CONDITION BODY ...)");
    LispResult result = CValue();
    while (!evaluator.EvaluateValue(arguments.Car(), L"WHILE").IsNil()) {
        result = evaluator.EvaluateBody(arguments.Cdr());
    }
    return result;
}

LispResult Repeat(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 1), L"(repeat COUNT BODY ...)");
    const CValue count = evaluator.EvaluateValue(arguments.Car(), L"REPEAT");
    if (count.Type() != VT_INTEGER) {
        throw CLispError(L"REPEAT needs a whole number as its count, not " + Excerpt(count));
    }
    LispResult result = CValue();
    for (std::int32_t i = 0; i < count.AsInteger(); ++i) {
        evaluator.Step();
        result = evaluator.EvaluateBody(arguments.Cdr());
    }
    return result;
}

// The variable is local to the loop: afterwards it has its previous value again.
LispResult Foreach(CEvaluator& evaluator, const CValue& arguments) {
    Require(HasElements(arguments, 2) && arguments.Car().Type() == VT_SYMBOL,
            L"(foreach NAME LIST BODY ...)");
    const std::wstring& name = arguments.Car().AsSymbol();
    const CValue list = evaluator.EvaluateValue(arguments.Cdr().Car(), L"FOREACH");
    if (!HasElements(list, 0)) {
        throw CLispError(L"FOREACH needs a list to go through, not " + Excerpt(list));
    }

    struct Restore {
        ~Restore() { evaluator.Assign(name, before); }
        CEvaluator& evaluator;
        const std::wstring& name;
        CValue before;
    };
    evaluator.Assign(name, evaluator.Variable(name));  // throws for what cannot be a variable
    const Restore restore{evaluator, name, evaluator.Variable(name)};
    LispResult result = CValue();
    for (const CValue* rest = &list; !rest->IsNil(); rest = &rest->Cdr()) {
        evaluator.Step();
        evaluator.Assign(name, rest->Car());
        result = evaluator.EvaluateBody(arguments.Cdr().Cdr());
    }
    return result;
}

LispResult Progn(CEvaluator& evaluator, const CValue& arguments) {
    return evaluator.EvaluateBody(arguments);
}

LispResult Set(const CArguments& arguments) {
    arguments.Evaluator().Assign(arguments.Symbol(0), arguments[1]);
    return arguments[1];
}

LispResult Eval(const CArguments& arguments) {
    return arguments.Evaluator().Evaluate(arguments[0]);
}

LispResult Apply(const CArguments& arguments) {
    return arguments.Evaluator().Apply(arguments[0], arguments.List(1));
}

// Goes through the lists in parallel, up to the end of the shortest.
LispResult Mapcar(const CArguments& arguments) {
    std::vector<std::vector<CValue>> lists;
    std::size_t length = SIZE_MAX;
    for (std::size_t i = 1; i < arguments.Count(); ++i) {
        lists.push_back(arguments.List(i));
        length = std::min(length, lists.back().size());
    }
    std::vector<CValue> results;
    for (std::size_t i = 0; i < length; ++i) {
        std::vector<CValue> row;
        row.reserve(lists.size());
        for (const auto& list : lists) {
            row.push_back(list[i]);
        }
        arguments.Evaluator().Step();
        results.push_back(arguments.Evaluator().ApplyForValue(arguments[0], row));
    }
    return CValue::List(results);
}

// Other systems keep only the lowest byte of a status: 256 would be success.
LispResult Exit(const CArguments& arguments) {
    const std::int32_t status = arguments.Has(0) ? arguments.Integer(0) : 0;
    if (status < 0 || status > 255) {
        arguments.Refuse(0, L"a status from 0 to 255");
    }
    throw LispExit{status};
}

constexpr SpecialForm kForms[] = {
    {L"QUOTE", Quote},   {L"FUNCTION", FunctionForm},
    {L"SETQ", Setq},     {L"DEFUN", Defun},
    {L"LAMBDA", Lambda}, {L"IF", If},
    {L"COND", Cond},     {L"AND", And},
    {L"OR", Or},         {L"WHILE", While},
    {L"REPEAT", Repeat}, {L"FOREACH", Foreach},
    {L"PROGN", Progn},
};

constexpr Builtin kFunctions[] = {
    {L"SET", 2, 2, Set},   {L"EVAL", 1, 1, Eval}, {L"APPLY", 2, 2, Apply}, {L"MAPCAR", 2, kAnyCount, Mapcar},
    {L"EXIT", 0, 1, Exit}, {L"QUIT", 0, 1, Exit},
};

}  // namespace

std::span<const SpecialForm> ControlForms() {
    return kForms;
}

std::span<const Builtin> ControlFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
