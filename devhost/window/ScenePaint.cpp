#include "devhost/window/ScenePaint.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "devhost/drawing/Grid.h"
#include "devhost/drawing/Outline.h"
#include "devhost/window/Scale.h"
#include "handles/GdiScopes.h"

namespace devhost {

namespace handles = tavrin::handles;

namespace {

constexpr COLORREF kSheet = RGB(250, 250, 245);
constexpr COLORREF kDot = RGB(200, 200, 194);
constexpr COLORREF kLargeDot = RGB(110, 110, 106);
constexpr COLORREF kAxisX = RGB(226, 170, 165);
constexpr COLORREF kAxisY = RGB(160, 205, 165);
constexpr COLORREF kInk = RGB(28, 36, 48);

constexpr COLORREF kPlaced = RGB(130, 140, 155);
constexpr std::size_t kMostPlaced = 5000;  // entities

constexpr int kDotDistance = 20;  // pixels, at least
constexpr int kLargeDotEvery = 5;

// The distance of chords from their curve, in pixels. The chords must be short, since their ends are rounded
// to whole pixels, which would show as corners between long chords.
constexpr double kCurveTolerance = 0.01;

// In pixels. A smaller text is drawn as a line, larger fonts do not exist.
constexpr double kLeastTextSize = 3;
constexpr double kMostTextSize = 8000;

POINT Rounded(Point pixel) {
    return {static_cast<LONG>(std::lround(pixel.x)), static_cast<LONG>(std::lround(pixel.y))};
}

class CScenePainter {
public:
    CScenePainter(HDC dc, const RECT& client, const CViewTransform& view)
        : m_dc(dc),
          m_view(view),
          m_client(client),
          // Larger than the client area, so that clipped ends are invisible.
          m_limits({{-20.0, -20.0}, {client.right + 20.0, client.bottom + 20.0}}) {}

    void Sheet() {
        const handles::GdiOwner brush(CreateSolidBrush(kSheet));
        FillRect(m_dc, &m_client, static_cast<HBRUSH>(brush.get()));
    }

    void Dots() {
        const double spacing = GridSpacing(m_view.UnitsPerPixel(), m_scale(kDotDistance));
        const Box shown = m_view.VisibleArea();
        const std::vector<double> rows = GridSteps(shown.low.y, shown.high.y, spacing);
        for (const double column : GridSteps(shown.low.x, shown.high.x, spacing)) {
            for (const double row : rows) {
                Dot(column, row, spacing);
            }
        }
    }

    void Axes() {
        // One that is out of sight may be farther away than the system's coordinates reach.
        const Point origin = m_view.ToPixel({0, 0});
        if (origin.y >= m_limits.low.y && origin.y <= m_limits.high.y) {
            Stroke(kAxisX, Rounded({0, origin.y}), Rounded({m_limits.high.x, origin.y}));
        }
        if (origin.x >= m_limits.low.x && origin.x <= m_limits.high.x) {
            Stroke(kAxisY, Rounded({origin.x, 0}), Rounded({origin.x, m_limits.high.y}));
        }
    }

    void Entities(std::span<const Entity> entities, COLORREF color) {
        m_color = color;
        // Rounded down, so that details stay apart.
        const handles::GdiOwner pen(CreatePen(PS_SOLID, m_scale(2) / 2, color));
        const handles::CSelectedObject selection(m_dc, pen);
        for (const Entity& entity : entities) {
            if (const auto* text = std::get_if<TextEntity>(&entity)) {
                Text(*text);
            } else {
                Outline(OutlineOf(entity, m_view.UnitsPerPixel() * kCurveTolerance));
            }
        }
    }

private:
    void Dot(double column, double row, double spacing) {
        const bool large = std::fmod(column, kLargeDotEvery) == 0 && std::fmod(row, kLargeDotEvery) == 0;
        const POINT dot = Rounded(m_view.ToPixel({column * spacing, row * spacing}));
        SetPixelV(m_dc, dot.x, dot.y, large ? kLargeDot : kDot);
    }

    void Stroke(COLORREF color, POINT from, POINT to) {
        const handles::GdiOwner pen(CreatePen(PS_SOLID, m_scale(1), color));
        const handles::CSelectedObject selection(m_dc, pen);
        MoveToEx(m_dc, from.x, from.y, nullptr);
        LineTo(m_dc, to.x, to.y);
    }

    // Clips each line, since the coordinates of a zoomed drawing overflow in GDI. Connected lines are drawn
    // as one polyline, for correct joins.
    void Outline(const std::vector<Point>& points) {
        std::vector<POINT> run;
        for (std::size_t i = 1; i < points.size(); ++i) {
            const auto piece = Clip({m_view.ToPixel(points[i - 1]), m_view.ToPixel(points[i])}, m_limits);
            if (!piece) {
                continue;
            }
            const POINT from = Rounded(piece->from);
            if (run.empty() || run.back().x != from.x || run.back().y != from.y) {
                Draw(run);
                run = {from};
            }
            run.push_back(Rounded(piece->to));
        }
        Draw(run);
    }

    void Draw(const std::vector<POINT>& run) {
        if (run.size() < 2) {
            return;
        }
        Polyline(m_dc, run.data(), static_cast<int>(run.size()));
        // The system leaves a line's last pixel out.
        SetPixelV(m_dc, run.back().x, run.back().y, m_color);
    }

    void Text(const TextEntity& text) {
        const double size = text.height / kCapitalFraction / m_view.UnitsPerPixel();
        const Point pixel = m_view.ToPixel(text.position);
        if (!(size <= kMostTextSize) || std::abs(pixel.x) > 2 * kMostTextSize ||
            std::abs(pixel.y) > 2 * kMostTextSize) {
            return;
        }
        if (size < kLeastTextSize) {
            const double length = static_cast<double>(text.text.size()) * text.height / 2;
            Outline({text.position, PointOnCircle(text.position, length, text.angle)});
            return;
        }
        const auto tenths = static_cast<int>(
            std::lround(std::fmod(text.angle, 2 * std::numbers::pi) * 1800 / std::numbers::pi));
        const handles::GdiOwner font(CreateFontW(-static_cast<int>(std::lround(size)), 0, tenths, tenths,
                                                 FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                                 OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY,
                                                 VARIABLE_PITCH | FF_SWISS, L"Arial"));
        const handles::CSelectedObject selection(m_dc, font);
        SetTextAlign(m_dc, TA_BASELINE | TA_LEFT);
        SetBkMode(m_dc, TRANSPARENT);
        SetTextColor(m_dc, m_color);
        const POINT start = Rounded(pixel);
        TextOutW(m_dc, start.x, start.y, text.text.c_str(), static_cast<int>(text.text.size()));
    }

    HDC m_dc;
    const CViewTransform& m_view;
    RECT m_client;
    Box m_limits;
    CScale m_scale;
    COLORREF m_color = kInk;
};

}  // namespace

void PaintScene(HDC dc, const RECT& client, const CDrawing& drawing, const CViewTransform& view) {
    CScenePainter painter(dc, client, view);
    painter.Sheet();
    painter.Dots();
    painter.Axes();
    painter.Entities(drawing.Entities(), kInk);
}

void PaintPlacement(HDC dc, const RECT& client, const std::vector<Entity>& entities,
                    const CViewTransform& view) {
    CScenePainter painter(dc, client, view);
    painter.Entities({entities.data(), std::min(entities.size(), kMostPlaced)}, kPlaced);
}

}  // namespace devhost
