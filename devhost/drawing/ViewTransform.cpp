#include "devhost/drawing/ViewTransform.h"

#include <algorithm>

namespace devhost {

namespace {

constexpr double kSmallestScale = 1e-9;
constexpr double kLargestScale = 1e9;

}  // namespace

void CViewTransform::Resize(int width, int height) {
    m_width = std::max(width, 1);
    m_height = std::max(height, 1);
}

Point CViewTransform::ToPixel(Point point) const {
    return {(point.x - m_lowerLeft.x) * m_scale, m_height - 1 - (point.y - m_lowerLeft.y) * m_scale};
}

Point CViewTransform::ToDrawing(Point pixel) const {
    return {m_lowerLeft.x + pixel.x / m_scale, m_lowerLeft.y + (m_height - 1 - pixel.y) / m_scale};
}

Box CViewTransform::VisibleArea() const {
    return {ToDrawing({-0.5, m_height - 0.5}), ToDrawing({m_width - 0.5, -0.5})};
}

void CViewTransform::ZoomAbout(Point pixel, double factor) {
    const double scale = m_scale * factor;
    if (!(scale >= kSmallestScale && scale <= kLargestScale)) {
        return;
    }
    const Point fixed = ToDrawing(pixel);
    m_scale = scale;
    m_lowerLeft = {fixed.x - pixel.x / m_scale, fixed.y - (m_height - 1 - pixel.y) / m_scale};
}

void CViewTransform::PanBy(double right, double down) {
    m_lowerLeft.x -= right / m_scale;
    m_lowerLeft.y += down / m_scale;
}

void CViewTransform::Fit(const Box& box, double margin) {
    const double width = std::max(m_width - 1 - 2 * margin, 1.0);
    const double height = std::max(m_height - 1 - 2 * margin, 1.0);
    double scale = m_scale;
    if (box.Width() > 0 || box.Height() > 0) {
        scale = 1 / std::max(box.Width() / width, box.Height() / height);
    }
    m_scale = std::clamp(scale, kSmallestScale, kLargestScale);
    const Point middle = box.Middle();
    m_lowerLeft = {middle.x - (m_width - 1) / 2 / m_scale, middle.y - (m_height - 1) / 2 / m_scale};
}

}  // namespace devhost
