// The transform of a view: drawing units (y upwards) to pixels (y downwards, from the window's upper left;
// integer coordinates are the middle of a pixel) and back.
#pragma once

#include "devhost/drawing/Point.h"

namespace devhost {

class CViewTransform {
public:
    // One drawing unit is one pixel; the origin is the middle of the lower left pixel.
    CViewTransform() = default;

    // The window's size in pixels. The point in the lower left corner stays where it is.
    void Resize(int width, int height);

    Point ToPixel(Point point) const;
    Point ToDrawing(Point pixel) const;
    // Drawing units per pixel.
    double UnitsPerPixel() const { return 1 / m_scale; }
    // The part of the drawing that the window shows.
    Box VisibleArea() const;

    // Scales by `factor` (above zero), keeping the point at `pixel`. Does nothing beyond the limits of the
    // scale.
    void ZoomAbout(Point pixel, double factor);
    // Moves the drawing by so many pixels to the right and down.
    void PanBy(double right, double down);
    // Shows the whole box, centred, as large as it fits with `margin` pixels around it. A box that is a point
    // is centred at the current scale.
    void Fit(const Box& box, double margin);

private:
    Point m_lowerLeft;    // at the middle of the lower left pixel
    double m_scale = 1;   // pixels for one drawing unit
    double m_width = 1;   // pixels
    double m_height = 1;  // pixels
};

}  // namespace devhost
