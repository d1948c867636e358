#include "devhost/drawing/SvgWriter.h"

#include <algorithm>
#include <charconv>
#include <numbers>

#include "devhost/Libraries.h"
#include "encoding/Encoding.h"

namespace devhost {

namespace {

constexpr char kStyle[] =
    "<style>\n"
    "line, polyline, polygon, circle, path { fill: none; stroke: black; stroke-width: 1.5px;"
    " vector-effect: non-scaling-stroke; stroke-linecap: round; stroke-linejoin: round }\n"
    "text { font-family: Arial, 'Liberation Sans', sans-serif }\n"
    "</style>\n";

constexpr double kLongerSide = 1000;  // pixels
constexpr double kMargin = 0.04;      // of the longer side

// The shortest text that reads as the same number.
std::string Number(double number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number == 0 ? 0.0 : number).ptr;
    return {text, end};
}

std::string Attribute(const char* name, double number) {
    return std::string(" ") + name + "=\"" + Number(number) + "\"";
}

// The picture's y goes downwards, the drawing's upwards.
std::string Pair(Point point) {
    return Number(point.x) + ' ' + Number(-point.y);
}

bool IsXmlCharacter(char32_t code) {
    if (code < 0x20) {
        return code == U'\t' || code == U'\n' || code == U'\r';
    }
    return code != 0xFFFE && code != 0xFFFF;
}

// Text between tags.
std::string Escaped(std::wstring_view text) {
    constexpr char32_t kReplacement = 0xFFFD;
    std::string escaped;
    while (!text.empty()) {
        const char32_t code = encoding::TakeCodePoint(text);
        if (code == U'<') {
            escaped += "&lt;";
        } else if (code == U'&') {
            escaped += "&amp;";
        } else {
            encoding::AppendUtf8(escaped, IsXmlCharacter(code) ? code : kReplacement);
        }
    }
    return escaped;
}

struct ElementVisitor {
    std::string operator()(const LineEntity& line) const {
        return "<line" + Attribute("x1", line.from.x) + Attribute("y1", -line.from.y) +
               Attribute("x2", line.to.x) + Attribute("y2", -line.to.y) + "/>";
    }
    std::string operator()(const PolylineEntity& line) const {
        std::string points;
        for (const Point& point : line.points) {
            points += (points.empty() ? "" : ", ") + Pair(point);
        }
        return (line.closed ? "<polygon points=\"" : "<polyline points=\"") + points + "\"/>";
    }
    std::string operator()(const CircleEntity& circle) const {
        return "<circle" + Attribute("cx", circle.center.x) + Attribute("cy", -circle.center.y) +
               Attribute("r", circle.radius) + "/>";
    }
    std::string operator()(const ArcEntity& arc) const {
        const double sweep = SweepOf(arc);
        // A path from a point to itself would be empty.
        if (sweep == 2 * std::numbers::pi) {
            return (*this)(CircleEntity{arc.center, arc.radius});
        }
        const char* large = sweep > std::numbers::pi ? "1" : "0";
        return "<path d=\"M " + Pair(PointOnCircle(arc.center, arc.radius, arc.start)) + " A " +
               Number(arc.radius) + ' ' + Number(arc.radius) + " 0 " + large + " 0 " +
               Pair(PointOnCircle(arc.center, arc.radius, arc.start + sweep)) + "\"/>";
    }
    std::string operator()(const TextEntity& text) const {
        const double degrees = text.angle * 180 / std::numbers::pi;
        // Preserves blanks; this attribute is the one that older viewers support.
        return "<text xml:space=\"preserve\" transform=\"translate(" + Pair(text.position) + ") rotate(" +
               Number(-degrees) + ")\"" + Attribute("font-size", text.height / kCapitalFraction) + ">" +
               Escaped(text.text) + "</text>";
    }
};

// The box of the drawing that the picture shows.
Box ShownPart(const CDrawing& drawing) {
    Box box = drawing.Extents().value_or(Box{{0, 0}, {1, 1}});
    const double side = std::max(box.Width(), box.Height());
    constexpr double kPoint = 1e-9;  // smaller drawings are points, which need a margin too
    const double margin = side > kPoint ? kMargin * side : 0.5;
    return {{box.low.x - margin, box.low.y - margin}, {box.high.x + margin, box.high.y + margin}};
}

}  // namespace

std::string ToSvg(const CDrawing& drawing) {
    const Box part = ShownPart(drawing);
    const double scale = kLongerSide / std::max(part.Width(), part.Height());
    const double width = std::max(1.0, part.Width() * scale);
    const double height = std::max(1.0, part.Height() * scale);
    const std::string corner = Number(part.low.x) + ' ' + Number(-part.high.y);
    const std::string size = Number(part.Width()) + ' ' + Number(part.Height());
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", width) +
                      Attribute("height", height) + " viewBox=\"" + corner + ' ' + size + "\">\n";
    svg += kStyle;
    svg += "<rect" + Attribute("x", part.low.x) + Attribute("y", -part.high.y) +
           " width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    for (const Entity& entity : drawing.Entities()) {
        svg += std::visit(ElementVisitor(), entity) + '\n';
    }
    return svg + "</svg>\n";
}

}  // namespace devhost
