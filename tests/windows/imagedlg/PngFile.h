// PNG files for tests, in every form that a picture program writes.
#pragma once

#include <string>
#include <vector>

enum class EPngForm {
    Rgb8,        // 8 bits each of red, green, blue
    Rgb16,       // 16 bits each
    Palette,     // 8-bit indices
    Interlaced,  // as Rgb8, in seven passes
};

// The bytes of a file; `pixels` row by row from the top, 0xRRGGBB. EPngForm::Palette holds at most 256 of
// them.
std::string PngFile(int width, int height, const std::vector<unsigned>& pixels,
                    EPngForm form = EPngForm::Rgb8);

// A picture of one colour, `size` pixels wide and high: one bit per pixel in memory, next to nothing in
// the file.
std::string HugePngFile(unsigned size, unsigned color);
