#include "tools/newitem/NewItemPictures.h"

namespace tavrin::tools {

namespace {

constexpr std::uint32_t kFace = 0xE9D9C4;
constexpr std::uint32_t kEdge = 0x5D4326;
constexpr std::uint32_t kDimension = 0x444444;
constexpr std::uint32_t kNumber = 0x1D4F80;
constexpr int kEdgeWidth = 3;
constexpr int kDigitHeight = 36;
constexpr int kSlideWidth = 688;
constexpr int kSlideHeight = 478;

void AppendFace(std::vector<Box>& boxes, const Box& box) {
    boxes.push_back(box);
    AppendFrame(boxes, {box.x, box.y, box.width, box.height, kEdge}, kEdgeWidth);
}

}  // namespace

BoxPicture PictureOfNewItem() {
    constexpr Box kRectangle = {300, 80, 330, 440, kFace};
    constexpr int kRight = kRectangle.x + kRectangle.width;
    constexpr int kBottom = kRectangle.y + kRectangle.height;
    constexpr int kLine = 2;
    constexpr int kDistance = 50;  // between the rectangle and the lines of its dimensions
    BoxPicture picture{906, 628, {}};
    AppendFace(picture.boxes, kRectangle);
    // The width below: its line, a tick at each end, the number of the parameter.
    picture.boxes.push_back({kRectangle.x, kBottom + kDistance, kRectangle.width, kLine, kDimension});
    for (const int x : {kRectangle.x, kRight - kLine}) {
        picture.boxes.push_back({x, kBottom + kDistance - 10, kLine, 20, kDimension});
    }
    AppendDigit(picture.boxes, kRectangle.x + kRectangle.width / 2, kBottom + kDistance - 8 - kDigitHeight,
                kDigitHeight, 1, kNumber);
    // The height to the left.
    picture.boxes.push_back({kRectangle.x - kDistance, kRectangle.y, kLine, kRectangle.height, kDimension});
    for (const int y : {kRectangle.y, kBottom - kLine}) {
        picture.boxes.push_back({kRectangle.x - kDistance - 10, y, 20, kLine, kDimension});
    }
    AppendDigit(picture.boxes, kRectangle.x - kDistance + 16,
                kRectangle.y + (kRectangle.height - kDigitHeight) / 2, kDigitHeight, 2, kNumber);
    return picture;
}

BoxPicture SlideOfNewItem(bool isDivided) {
    constexpr Box kRectangle = {214, 40, 260, 400, kFace};
    BoxPicture picture{kSlideWidth, kSlideHeight, {}};
    AppendFace(picture.boxes, kRectangle);
    if (isDivided) {
        picture.boxes.push_back({kRectangle.x + (kRectangle.width - kEdgeWidth) / 2, kRectangle.y, kEdgeWidth,
                                 kRectangle.height, kEdge});
    }
    return picture;
}

BoxPicture LogoOfItems() {
    BoxPicture picture{kSlideWidth, kSlideHeight, {}};
    AppendFace(picture.boxes, {294, 189, 100, 100, kFace});
    return picture;
}

BoxPicture EmptySlide() {
    BoxPicture picture{kSlideWidth, kSlideHeight, {}};
    AppendFrame(picture.boxes, {0, 0, kSlideWidth, kSlideHeight, kDimension}, kEdgeWidth);
    return picture;
}

}  // namespace tavrin::tools
