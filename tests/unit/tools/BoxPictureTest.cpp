// Pictures of rectangles.
#include "tools/pictures/BoxPicture.h"

#include <cstdlib>

#include "tests/unit/tools/ToolFolder.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

// A picture's pixels as rows of hexadecimal colours, by another program.
std::string PixelsOf(const CToolFolder& folder, const std::string& file) {
    EXPECT_EQ(std::system(("convert " + file + " -depth 8 rgb:" + folder.Path("pixels")).c_str()), 0);
    return folder.Read("pixels");
}

TEST(BoxPicture, LaterBoxesCoverEarlierOnesAndAreCutOffAtTheEdges) {
    const CToolFolder folder;
    const BoxPicture picture{3, 2, {{-1, -1, 3, 2, 0x010203}, {1, 0, 9, 9, 0xA0B0C0}}};
    EXPECT_EQ(PixelsOf(folder, folder.Write("a.png", PngOf(picture))),
              "\x01\x02\x03\xA0\xB0\xC0\xA0\xB0\xC0\xFF\xFF\xFF\xA0\xB0\xC0\xA0\xB0\xC0");
}

TEST(BoxPicture, TheDrawingShowsWhatThePictureShows) {
    const CToolFolder folder;
    BoxPicture picture{60, 40, {{3, 4, 20, 30, 0xE9D9C4}}};
    AppendFrame(picture.boxes, {3, 4, 20, 30, 0x5D4326}, 2);
    AppendDigit(picture.boxes, 30, 5, 30, 2, 0x1D4F80);
    const std::string svg = folder.Write("a.svg", SvgOf(picture));
    ASSERT_EQ(std::system(("rsvg-convert -o " + folder.Path("b.png") + " " + svg).c_str()), 0);
    EXPECT_EQ(PixelsOf(folder, folder.Write("a.png", PngOf(picture))),
              PixelsOf(folder, folder.Path("b.png")));
}

TEST(BoxPicture, ADigitStaysWithinItsBoxAndDiffersFromTheOthers) {
    std::vector<std::string> digits;
    for (int digit = 0; digit < 10; ++digit) {
        BoxPicture picture{20, 40, {}};
        AppendDigit(picture.boxes, 0, 0, 40, digit, 0);
        for (const Box& box : picture.boxes) {
            EXPECT_GE(box.x, 0);
            EXPECT_LE(box.x + box.width, 20);
            EXPECT_LE(box.y + box.height, 40);
        }
        digits.push_back(SvgOf(picture));
    }
    std::sort(digits.begin(), digits.end());
    EXPECT_EQ(std::unique(digits.begin(), digits.end()), digits.end());
}

}  // namespace
