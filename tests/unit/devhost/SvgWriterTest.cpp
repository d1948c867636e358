#include "devhost/drawing/SvgWriter.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace devhost;

namespace {

constexpr double kPi = std::numbers::pi;

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::string SvgOf(Entity entity) {
    CDrawing drawing;
    EXPECT_TRUE(drawing.Add(std::move(entity)));
    return ToSvg(drawing);
}

TEST(SvgWriter, ShowsEveryKindOfEntityWithYUpwards) {
    EXPECT_TRUE(
        Contains(SvgOf(LineEntity{{1, 2}, {3, -4.5}}), "<line x1=\"1\" y1=\"-2\" x2=\"3\" y2=\"4.5\"/>"));
    EXPECT_TRUE(Contains(SvgOf(PolylineEntity{{{0, 0}, {1, 0}, {1, 1}}, false}),
                         "<polyline points=\"0 0, 1 0, 1 -1\"/>"));
    EXPECT_TRUE(Contains(SvgOf(PolylineEntity{{{0, 0}, {1, 0}, {1, 1}}, true}),
                         "<polygon points=\"0 0, 1 0, 1 -1\"/>"));
    EXPECT_TRUE(Contains(SvgOf(CircleEntity{{5, 6}, 7}), "<circle cx=\"5\" cy=\"-6\" r=\"7\"/>"));
    EXPECT_TRUE(Contains(SvgOf(TextEntity{{5, 6}, 36, kPi / 2, L"Hall"}),
                         "<text xml:space=\"preserve\" transform=\"translate(5 -6) rotate(-90)\" "
                         "font-size=\"50\">Hall</text>"));
}

TEST(SvgWriter, AnArcTurnsTheSameWayAsInTheDrawing) {
    // From the right end counter-clockwise: seen with y downwards that is not the direction of SVG's flag.
    EXPECT_TRUE(Contains(SvgOf(ArcEntity{{0, 0}, 10, 0, 1}), "<path d=\"M 10 0 A 10 10 0 0 0 5.4"));
    EXPECT_TRUE(Contains(SvgOf(ArcEntity{{0, 0}, 10, 0, 4}), "<path d=\"M 10 0 A 10 10 0 1 0 -6.5"));
    EXPECT_TRUE(Contains(SvgOf(ArcEntity{{0, 0}, 10, 2, 2}), "<circle cx=\"0\" cy=\"0\" r=\"10\"/>"));
}

TEST(SvgWriter, ShowsTheWholeDrawingWithAMargin) {
    const std::string svg = SvgOf(LineEntity{{100, 200}, {200, 250}});
    EXPECT_TRUE(Contains(svg, "viewBox=\"96 -254 108 58\"")) << svg;
    EXPECT_TRUE(Contains(svg, "width=\"1000\" height=\"537.03")) << svg;
    EXPECT_TRUE(Contains(svg, "vector-effect: non-scaling-stroke"));
}

TEST(SvgWriter, AnEmptyDrawingAndAPointHaveAPictureToo) {
    const std::string empty = ToSvg(CDrawing());
    EXPECT_TRUE(Contains(empty, "width=\"1000\" height=\"1000\"")) << empty;
    EXPECT_TRUE(empty.ends_with("fill=\"white\"/>\n</svg>\n"));
    const std::string point = SvgOf(LineEntity{{5, 5}, {5, 5}});
    EXPECT_TRUE(Contains(point, "viewBox=\"4.5 -5.5 1 1\"")) << point;
    const std::string far = SvgOf(LineEntity{{1e12, 1e12}, {1e12, 1e12}});
    EXPECT_FALSE(Contains(far, "nan") || Contains(far, "inf")) << far;
}

TEST(SvgWriter, TextsAreEscapedUtf8) {
    const auto shown = [](const std::wstring& text) {
        const std::string svg = SvgOf(TextEntity{{0, 0}, 1, 0, text});
        const std::size_t from = svg.find('>', svg.find("<text ")) + 1;
        return svg.substr(from, svg.find("</text>") - from);
    };
    EXPECT_EQ(shown(L"<a & b>"), "&lt;a &amp; b>");
    EXPECT_EQ(shown(L"porta \u00E8 \u20AC"), "porta \xC3\xA8 \xE2\x82\xAC");
    // One character outside the first plane, as a pair of surrogates.
    EXPECT_EQ(shown({wchar_t{0xD83D}, wchar_t{0xDEAA}}), "\xF0\x9F\x9A\xAA");
    EXPECT_EQ(shown({L'x', wchar_t{0xD83D}}), "x\xEF\xBF\xBD");
    EXPECT_EQ(shown({wchar_t{0xDEAA}, L'\x01'}), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

}  // namespace
