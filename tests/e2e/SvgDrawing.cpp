#include "tests/e2e/SvgDrawing.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace {

bool IsNear(double a, double b) {
    return std::abs(a - b) < 1e-6;
}

// What stands between `before` and `after`; nothing when they are not there.
std::string Between(const std::string& text, const std::string& before, const std::string& after) {
    const std::size_t start = text.find(before);
    if (start == std::string::npos) {
        return {};
    }
    const std::size_t from = start + before.size();
    return text.substr(from, text.find(after, from) - from);
}

// The numbers of a list of points; x and y take turns.
std::vector<double> Coordinates(std::string points) {
    std::ranges::replace(points, ',', ' ');
    std::istringstream stream(points);
    std::vector<double> numbers;
    for (double number; stream >> number;) {
        numbers.push_back(number);
    }
    return numbers;
}

}  // namespace

SvgDrawing::SvgDrawing(const std::string& svg) {
    std::istringstream lines(svg);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("<line")) {
            ++m_lines;
        }
        if (line.starts_with("<path")) {
            m_arcs.push_back(std::atof(Between(line, " A ", " ").c_str()));
        }
        if (line.starts_with("<text")) {
            m_texts.push_back(Between(line, ">", "<"));
        }
        if (!line.starts_with("<polygon")) {
            continue;
        }
        const std::vector<double> p = Coordinates(Between(line, "points=\"", "\""));
        if (p.size() == 8 && IsNear(p[1], p[3]) && IsNear(p[2], p[4]) && IsNear(p[5], p[7]) &&
            IsNear(p[6], p[0])) {
            m_boxes.emplace_back(std::abs(p[2] - p[0]), std::abs(p[5] - p[3]));
        }
    }
}

int SvgDrawing::Boxes(double width, double height) const {
    return static_cast<int>(std::ranges::count_if(
        m_boxes, [&](const auto& box) { return IsNear(box.first, width) && IsNear(box.second, height); }));
}

int SvgDrawing::Arcs(double radius) const {
    return static_cast<int>(std::ranges::count_if(m_arcs, [&](double arc) { return IsNear(arc, radius); }));
}
