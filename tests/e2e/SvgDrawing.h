// A drawing as the stand-in host wrote it: the shapes of an SVG file, one per line. Sizes are in drawing
// units.
#pragma once

#include <string>
#include <utility>
#include <vector>

class SvgDrawing {
public:
    explicit SvgDrawing(const std::string& svg);

    // Closed upright rectangles of this size.
    int Boxes(double width, double height) const;
    // Arcs of this radius.
    int Arcs(double radius) const;
    int Lines() const { return m_lines; }
    bool IsEmpty() const { return m_boxes.empty() && m_arcs.empty() && m_lines == 0; }
    const std::vector<std::string>& Texts() const { return m_texts; }

private:
    std::vector<std::pair<double, double>> m_boxes;  // width, height
    std::vector<double> m_arcs;                      // radii
    std::vector<std::string> m_texts;
    int m_lines = 0;
};
