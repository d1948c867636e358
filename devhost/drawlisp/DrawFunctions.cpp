#include "devhost/drawlisp/DrawFunctions.h"

#include "lisp/Arguments.h"
#include "lisp/Printer.h"

namespace {

// More than any item draws: a loop without end is told so before the memory is used up.
constexpr std::size_t kMostEntities = 1'000'000;

SPoint PointOf(const CArguments& arguments, std::size_t index) {
    const SLispPoint point = arguments.Point(index);
    return {point.x, point.y};
}

double Length(const CArguments& arguments, std::size_t index) {
    if (!(arguments.Number(index) > 0)) {
        arguments.Refuse(index, L"a number above zero");
    }
    return arguments.Number(index);
}

SLine Line(const CArguments& arguments) {
    return {PointOf(arguments, 0), PointOf(arguments, 1)};
}

SPolyline Polyline(const CArguments& arguments) {
    SPolyline polyline;
    for (const CValue& element : arguments.List(0)) {
        const auto point = ToPoint(element);
        if (!point) {
            arguments.Fail(Excerpt(element) + L" is no point: each is a list of two or three numbers");
        }
        polyline.points.push_back({point->x, point->y});
    }
    if (polyline.points.size() < 2) {
        arguments.Refuse(0, L"a list of two points at least");
    }
    polyline.closed = arguments.Has(1) && !arguments[1].IsNil();
    return polyline;
}

SCircle Circle(const CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1)};
}

SArc Arc(const CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1), arguments.Number(2), arguments.Number(3)};
}

SText Text(const CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1), arguments.Number(2), arguments.Text(3)};
}

// Defines a function that adds what `make` makes of its arguments.
template <typename TMake>
void DefineEntity(CEvaluator& evaluator, CDrawing& drawing, const wchar_t* name, int least, int most,
                  TMake make) {
    const auto run = [&drawing, make](const CArguments& arguments) -> CLispResult {
        if (drawing.Entities().size() >= kMostEntities) {
            arguments.Fail(L"the drawing holds " + std::to_wstring(kMostEntities) +
                           L" entities already: does a loop draw without end?");
        }
        if (!drawing.Add(make(arguments))) {
            arguments.Fail(L"a number is beyond 1e12 and cannot be drawn");
        }
        return CValue::True();
    };
    evaluator.Define(name, TakeArguments(evaluator, name, least, most, run));
}

}  // namespace

void DefineDrawFunctions(CEvaluator& evaluator, CDrawing& drawing) {
    DefineEntity(evaluator, drawing, L"DRAW-LINE", 2, 2, Line);
    DefineEntity(evaluator, drawing, L"DRAW-POLYLINE", 1, 2, Polyline);
    DefineEntity(evaluator, drawing, L"DRAW-CIRCLE", 2, 2, Circle);
    DefineEntity(evaluator, drawing, L"DRAW-ARC", 4, 4, Arc);
    DefineEntity(evaluator, drawing, L"DRAW-TEXT", 4, 4, Text);
    const auto clear = [&drawing](const CArguments&) -> CLispResult {
        drawing.Clear();
        return CValue::True();
    };
    evaluator.Define(L"DRAW-CLEAR", TakeArguments(evaluator, L"DRAW-CLEAR", 0, 0, clear));
}
