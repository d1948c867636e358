#include "devhost/drawlisp/DrawFunctions.h"

#include "devhost/Libraries.h"
#include "lisp/Arguments.h"
#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace devhost {

namespace {

// More than any item draws: stops an endless loop before the memory is exhausted.
constexpr std::size_t kMaxEntities = 1'000'000;

Point PointOf(const lisp::CArguments& arguments, std::size_t index) {
    const lisp::LispPoint point = arguments.Point(index);
    return {point.x, point.y};
}

double Length(const lisp::CArguments& arguments, std::size_t index) {
    if (!(arguments.Number(index) > 0)) {
        arguments.Refuse(index, L"a number above zero");
    }
    return arguments.Number(index);
}

LineEntity Line(const lisp::CArguments& arguments) {
    return {PointOf(arguments, 0), PointOf(arguments, 1)};
}

PolylineEntity Polyline(const lisp::CArguments& arguments) {
    PolylineEntity polyline;
    for (const lisp::CValue& element : arguments.List(0)) {
        const auto point = lisp::ToPoint(element);
        if (!point) {
            arguments.Fail(lisp::Excerpt(element) + L" is not a point, a list of two or three numbers");
        }
        polyline.points.push_back({point->x, point->y});
    }
    if (polyline.points.size() < 2) {
        arguments.Refuse(0, L"a list of two points at least");
    }
    polyline.closed = arguments.Has(1) && !arguments[1].IsNil();
    return polyline;
}

CircleEntity Circle(const lisp::CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1)};
}

ArcEntity Arc(const lisp::CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1), arguments.Number(2), arguments.Number(3)};
}

TextEntity Text(const lisp::CArguments& arguments) {
    return {PointOf(arguments, 0), Length(arguments, 1), arguments.Number(2), arguments.Text(3)};
}

// What is drawn during its lifetime goes into the placement.
class CPlacementScope {
public:
    explicit CPlacementScope(CDrawing& drawing) : m_drawing(drawing) { drawing.BeginPlacement(); }
    ~CPlacementScope() { m_drawing.EndPlacement(); }
    CPlacementScope(const CPlacementScope&) = delete;
    CPlacementScope& operator=(const CPlacementScope&) = delete;

private:
    CDrawing& m_drawing;
};

// (draw-placement FUNCTION): what FUNCTION draws at the point (0 0) becomes the placement; nil ends it.
lisp::LispResult Place(CDrawing& drawing, const lisp::CArguments& arguments) {
    if (arguments[0].IsNil()) {
        drawing.ClearPlacement();
        return lisp::CValue();
    }
    const lisp::CValue coordinates[] = {lisp::CValue::Real(0), lisp::CValue::Real(0)};
    const lisp::CValue origin = lisp::CValue::List(coordinates);
    const CPlacementScope scope(drawing);
    arguments.Evaluator().Apply(arguments[0], {&origin, 1});
    return lisp::CValue::True();
}

// Defines a function that adds the entity that `make` creates from its arguments.
template <typename TMake>
void DefineEntity(lisp::CEvaluator& evaluator, CDrawing& drawing, const wchar_t* name, int least, int most,
                  TMake make) {
    const auto run = [&drawing, make](const lisp::CArguments& arguments) -> lisp::LispResult {
        if (drawing.Entities().size() + drawing.Placement().size() >= kMaxEntities) {
            arguments.Fail(L"the drawing holds " + std::to_wstring(kMaxEntities) +
                           L" entities already: does a loop draw without end?");
        }
        if (!drawing.Add(make(arguments))) {
            arguments.Fail(L"a number is beyond 1e12 and cannot be drawn");
        }
        return lisp::CValue::True();
    };
    evaluator.Define(name, lisp::TakeArguments(evaluator, name, least, most, run));
}

}  // namespace

void DefineDrawFunctions(lisp::CEvaluator& evaluator, CDrawing& drawing) {
    DefineEntity(evaluator, drawing, L"DRAW-LINE", 2, 2, Line);
    DefineEntity(evaluator, drawing, L"DRAW-POLYLINE", 1, 2, Polyline);
    DefineEntity(evaluator, drawing, L"DRAW-CIRCLE", 2, 2, Circle);
    DefineEntity(evaluator, drawing, L"DRAW-ARC", 4, 4, Arc);
    DefineEntity(evaluator, drawing, L"DRAW-TEXT", 4, 4, Text);
    const auto clear = [&drawing](const lisp::CArguments&) -> lisp::LispResult {
        drawing.Clear();
        return lisp::CValue::True();
    };
    evaluator.Define(L"DRAW-CLEAR", lisp::TakeArguments(evaluator, L"DRAW-CLEAR", 0, 0, clear));
    const auto place = [&drawing](const lisp::CArguments& arguments) { return Place(drawing, arguments); };
    evaluator.Define(L"DRAW-PLACEMENT", lisp::TakeArguments(evaluator, L"DRAW-PLACEMENT", 1, 1, place));
}

}  // namespace devhost
