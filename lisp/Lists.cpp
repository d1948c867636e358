// Functions on lists.
#include <algorithm>

#include "lisp/Builtins.h"
#include "lisp/Equality.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace tavrin::lisp {

namespace {

// CAR, CDR, CADR and so on: the letters between C and R are the steps, the last one first. nil has nil as
// both.
LispResult Walk(const CArguments& arguments) {
    const std::wstring name = arguments.Function();
    const CValue* value = &arguments[0];
    for (std::size_t i = name.size() - 2; i > 0; --i) {
        if (value->IsNil()) {
            return CValue();
        }
        if (value->Type() != VT_PAIR) {
            arguments.Refuse(0, name.size() == 3 ? L"a list" : L"a list nested deeply enough");
        }
        value = name[i] == L'A' ? &value->Car() : &value->Cdr();
    }
    return *value;
}

LispResult Cons(const CArguments& arguments) {
    arguments.Evaluator().Step();
    return CValue::Pair(arguments[0], arguments[1]);
}

LispResult List(const CArguments& arguments) {
    arguments.Evaluator().Step(arguments.Count());
    return CValue::List(arguments.Values());
}

LispResult Append(const CArguments& arguments) {
    CValue result;
    for (std::size_t i = arguments.Count(); i-- > 0;) {
        const std::vector<CValue> elements = arguments.List(i);
        result = result.IsNil() ? arguments[i] : CValue::List(elements, result);
    }
    return result;
}

LispResult Nth(const CArguments& arguments) {
    std::int32_t index = arguments.Integer(0);
    if (index < 0) {
        arguments.Refuse(0, L"a whole number from 0 on");
    }
    const CValue* rest = &arguments[1];
    for (; rest->Type() == VT_PAIR && index > 0; rest = &rest->Cdr()) {
        --index;
    }
    if (rest->Type() == VT_PAIR) {
        return rest->Car();
    }
    if (!rest->IsNil()) {
        arguments.Refuse(1, L"a list");
    }
    return CValue();
}

LispResult Length(const CArguments& arguments) {
    return CValue::Integer(static_cast<std::int32_t>(arguments.List(0).size()));
}

LispResult Reverse(const CArguments& arguments) {
    std::vector<CValue> elements = arguments.List(0);
    std::reverse(elements.begin(), elements.end());
    return CValue::List(elements);
}

LispResult Last(const CArguments& arguments) {
    const std::vector<CValue> elements = arguments.List(0);
    return elements.empty() ? CValue() : elements.back();
}

LispResult Assoc(const CArguments& arguments) {
    for (const CValue& element : arguments.List(1)) {
        if (element.IsNil()) {
            continue;
        }
        if (element.Type() != VT_PAIR) {
            arguments.Fail(Excerpt(element) + L" in the list is not a pair");
        }
        if (IsEqual(arguments.Evaluator(), element.Car(), arguments[0])) {
            return element;
        }
    }
    return CValue();
}

// The list from the element on.
LispResult Member(const CArguments& arguments) {
    const CValue* rest = &arguments[1];
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr()) {
        if (IsEqual(arguments.Evaluator(), rest->Car(), arguments[0])) {
            return *rest;
        }
    }
    if (!rest->IsNil()) {
        arguments.Refuse(1, L"a list");
    }
    return CValue();
}

CValue Substitute(CEvaluator& evaluator, const CValue& wanted, const CValue& old, const CValue& tree) {
    evaluator.CheckStack();
    if (IsEqual(evaluator, tree, old)) {
        return wanted;
    }
    std::vector<CValue> elements;
    const CValue* rest = &tree;
    // Tails are replaced too, except the nil that ends a list.
    const auto isReplaced = [&] { return !rest->IsNil() && IsEqual(evaluator, *rest, old); };
    for (; rest->Type() == VT_PAIR && !isReplaced(); rest = &rest->Cdr()) {
        evaluator.Step();
        elements.push_back(Substitute(evaluator, wanted, old, rest->Car()));
    }
    return CValue::List(elements, isReplaced() ? wanted : *rest);
}

LispResult Subst(const CArguments& arguments) {
    return Substitute(arguments.Evaluator(), arguments[0], arguments[1], arguments[2]);
}

constexpr Builtin kFunctions[] = {
    {L"CAR", 1, 1, Walk},    {L"CDR", 1, 1, Walk},          {L"CAAR", 1, 1, Walk},
    {L"CADR", 1, 1, Walk},   {L"CDAR", 1, 1, Walk},         {L"CDDR", 1, 1, Walk},
    {L"CAAAR", 1, 1, Walk},  {L"CAADR", 1, 1, Walk},        {L"CADAR", 1, 1, Walk},
    {L"CADDR", 1, 1, Walk},  {L"CDAAR", 1, 1, Walk},        {L"CDADR", 1, 1, Walk},
    {L"CDDAR", 1, 1, Walk},  {L"CDDDR", 1, 1, Walk},        {L"CAAAAR", 1, 1, Walk},
    {L"CAAADR", 1, 1, Walk}, {L"CAADAR", 1, 1, Walk},       {L"CAADDR", 1, 1, Walk},
    {L"CADAAR", 1, 1, Walk}, {L"CADADR", 1, 1, Walk},       {L"CADDAR", 1, 1, Walk},
    {L"CADDDR", 1, 1, Walk}, {L"CDAAAR", 1, 1, Walk},       {L"CDAADR", 1, 1, Walk},
    {L"CDADAR", 1, 1, Walk}, {L"CDADDR", 1, 1, Walk},       {L"CDDAAR", 1, 1, Walk},
    {L"CDDADR", 1, 1, Walk}, {L"CDDDAR", 1, 1, Walk},       {L"CDDDDR", 1, 1, Walk},
    {L"CONS", 2, 2, Cons},   {L"LIST", 0, kAnyCount, List}, {L"APPEND", 0, kAnyCount, Append},
    {L"NTH", 2, 2, Nth},     {L"LENGTH", 1, 1, Length},     {L"REVERSE", 1, 1, Reverse},
    {L"LAST", 1, 1, Last},   {L"ASSOC", 2, 2, Assoc},       {L"MEMBER", 2, 2, Member},
    {L"SUBST", 3, 3, Subst},
};

}  // namespace

std::span<const Builtin> ListFunctions() {
    return kFunctions;
}

}  // namespace tavrin::lisp
