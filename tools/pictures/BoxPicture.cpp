#include "tools/pictures/BoxPicture.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <new>

#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

namespace tavrin::tools {

namespace {

constexpr int kChannels = 3;

// The segments of a digit: top, upper left, upper right, middle, lower left, lower right, bottom.
constexpr std::array<unsigned, 10> kSegments = {0x77, 0x24, 0x5D, 0x6D, 0x2E, 0x6B, 0x7B, 0x25, 0x7F, 0x6F};

std::string ElementOf(const Box& box) {
    std::array<char, 160> text{};
    std::snprintf(text.data(), text.size(),
                  "  <rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"#%06x\"/>\n", box.x, box.y,
                  box.width, box.height, static_cast<unsigned>(box.color));
    return text.data();
}

void Paint(std::vector<unsigned char>& pixels, const BoxPicture& picture, const Box& box) {
    const int right = std::min(box.x + box.width, picture.width);
    const int bottom = std::min(box.y + box.height, picture.height);
    for (int y = std::max(box.y, 0); y < bottom; ++y) {
        for (int x = std::max(box.x, 0); x < right; ++x) {
            const std::size_t at = (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                                    static_cast<std::size_t>(x)) *
                                   kChannels;
            pixels[at] = static_cast<unsigned char>(box.color >> 16);
            pixels[at + 1] = static_cast<unsigned char>(box.color >> 8);
            pixels[at + 2] = static_cast<unsigned char>(box.color);
        }
    }
}

void Append(void* bytes, void* data, int size) {
    static_cast<std::string*>(bytes)->append(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

}  // namespace

void AppendFrame(std::vector<Box>& boxes, const Box& box, int thickness) {
    boxes.push_back({box.x, box.y, box.width, thickness, box.color});
    boxes.push_back({box.x, box.y + box.height - thickness, box.width, thickness, box.color});
    boxes.push_back({box.x, box.y, thickness, box.height, box.color});
    boxes.push_back({box.x + box.width - thickness, box.y, thickness, box.height, box.color});
}

void AppendDigit(std::vector<Box>& boxes, int x, int y, int height, int digit, std::uint32_t color) {
    const int width = height / 2;
    const int pen = std::max(height / 8, 1);
    const int half = (height + pen) / 2;
    const std::array<Box, 7> segments = {{{x, y, width, pen, color},
                                          {x, y, pen, half, color},
                                          {x + width - pen, y, pen, half, color},
                                          {x, y + half - pen, width, pen, color},
                                          {x, y + height - half, pen, half, color},
                                          {x + width - pen, y + height - half, pen, half, color},
                                          {x, y + height - pen, width, pen, color}}};
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if ((kSegments.at(static_cast<std::size_t>(digit)) >> i & 1U) != 0) {
            boxes.push_back(segments[i]);
        }
    }
}

std::string SvgOf(const BoxPicture& picture) {
    const std::string width = std::to_string(picture.width);
    const std::string height = std::to_string(picture.height);
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
                      "\" viewBox=\"0 0 " + width + " " + height + "\">\n";
    svg += ElementOf({0, 0, picture.width, picture.height, 0xFFFFFF});
    for (const Box& box : picture.boxes) {
        svg += ElementOf(box);
    }
    return svg + "</svg>\n";
}

std::string PngOf(const BoxPicture& picture) {
    const auto count = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    std::vector<unsigned char> pixels(count * kChannels, 0xFF);
    for (const Box& box : picture.boxes) {
        Paint(pixels, picture, box);
    }
    std::string png;
    if (stbi_write_png_to_func(Append, &png, picture.width, picture.height, kChannels, pixels.data(),
                               picture.width * kChannels) == 0) {
        throw std::bad_alloc();
    }
    return png;
}

}  // namespace tavrin::tools
