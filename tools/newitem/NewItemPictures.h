// The drawings of a new item, in the sizes that fit the dialogs.
#pragma once

#include "tools/pictures/BoxPicture.h"

namespace tavrin::tools {

// The picture of the item dialog: a rectangle with the numbers of its two parameters.
BoxPicture PictureOfNewItem();
// The slide of a variant in the choice dialog.
BoxPicture SlideOfNewItem(bool isDivided);
// What the choice dialog shows in an unused cell, and for a slide that no longer exists.
BoxPicture LogoOfItems();
BoxPicture EmptySlide();

}  // namespace tavrin::tools
