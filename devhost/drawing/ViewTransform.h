// Where a drawing stands in a window: drawing units (y upwards) to pixels (y downwards, from the window's
// upper left; a pixel's whole coordinates are its middle) and back.
#pragma once

#include "devhost/drawing/Point.h"

class CViewTransform {
public:
    // One drawing unit is one pixel, the origin is the middle of the lower left pixel.
    CViewTransform() = default;

    // The window's size in pixels. The point in the lower left corner stays where it is.
    void Resize(int width, int height);

    SPoint ToPixel(SPoint point) const;
    SPoint ToDrawing(SPoint pixel) const;
    // Drawing units that one pixel spans.
    double UnitsPerPixel() const { return 1 / m_scale; }
    // The part of the drawing that the window shows.
    SBox Shown() const;

    // Magnifies by `factor` (above zero; below one: makes smaller), with the point under `pixel` staying
    // there. At a scale beyond which the numbers would no longer tell pixels apart nothing changes.
    void ZoomAbout(SPoint pixel, double factor);
    // Moves what is shown by so many pixels to the right and down.
    void PanBy(double right, double down);
    // Shows the whole box, as large as it fits with `margin` pixels around it, in the middle. A box that
    // is a point comes to the middle with the scale left as it is.
    void Fit(const SBox& box, double margin);

private:
    SPoint m_lowerLeft;   // in the middle of the lower left pixel
    double m_scale = 1;   // pixels for one drawing unit
    double m_width = 1;   // pixels
    double m_height = 1;  // pixels
};
