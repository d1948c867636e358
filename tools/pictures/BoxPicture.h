// Pictures of upright rectangles, as SVG and as the PNG file that the module shows. Both show the same.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::tools {

// A rectangle in pixels from the upper left corner of the picture; the colour is 0xRRGGBB.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::uint32_t color = 0;
};

// Later boxes cover earlier ones. The background is white.
struct BoxPicture {
    int width = 0;
    int height = 0;
    std::vector<Box> boxes;
};

// Appends the four sides of a frame that is `thickness` pixels wide and lies within the box.
void AppendFrame(std::vector<Box>& boxes, const Box& box, int thickness);
// Appends a digit, 0 to 9, with its upper left corner at that position; it is `height` / 2 wide.
void AppendDigit(std::vector<Box>& boxes, int x, int y, int height, int digit, std::uint32_t color);

std::string SvgOf(const BoxPicture& picture);
// Boxes are cut off at the picture's edges. The same picture gives the same bytes. Throws std::bad_alloc.
std::string PngOf(const BoxPicture& picture);

}  // namespace tavrin::tools
