// The names of a choice's slides: the choice's name with one of these endings.
#pragma once

namespace tavrin::imagedlg {

// Looked for first.
inline constexpr wchar_t kFlatSlideEnding[] = L"_t.png";
// Looked for second, where 3D slides count too.
inline constexpr wchar_t kSpaceSlideEnding[] = L"_t_3d.png";

// The text that says that no choice has a slide.
inline constexpr unsigned kNoSlideText = 5019;

}  // namespace tavrin::imagedlg
