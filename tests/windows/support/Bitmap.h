// Small picture files for tests.
#pragma once

#include <string>
#include <vector>

// The bytes of a 24-bit BMP file; `pixels` row by row from the top, 0xRRGGBB.
inline std::string BitmapFile(int width, int height, const std::vector<unsigned>& pixels) {
    std::string bytes;
    const auto put = [&](unsigned value, int size) {
        for (int byte = 0; byte < size; ++byte) {
            bytes += static_cast<char>(value >> (8 * byte) & 0xFFU);
        }
    };
    const unsigned rowSize = (static_cast<unsigned>(width) * 3 + 3) / 4 * 4;
    const unsigned imageSize = rowSize * static_cast<unsigned>(height);
    bytes = "BM";
    put(54 + imageSize, 4);
    put(0, 4);
    put(54, 4);
    put(40, 4);
    put(static_cast<unsigned>(width), 4);
    put(static_cast<unsigned>(height), 4);
    put(1, 2);
    put(24, 2);
    put(0, 4);
    put(imageSize, 4);
    for (int field = 0; field < 4; ++field) {
        put(0, 4);
    }
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            put(pixels[static_cast<size_t>(y * width + x)], 3);
        }
        bytes.append(rowSize - static_cast<unsigned>(width) * 3, '\0');
    }
    return bytes;
}
