// The names of a choice's slides: the choice's name with one of these endings.
#pragma once

// Looked for first.
inline constexpr wchar_t FLAT_SLIDE_ENDING[] = L"_t.png";
// Looked for second, where slides in space count too.
inline constexpr wchar_t SPACE_SLIDE_ENDING[] = L"_t_3d.png";

// The text that says that no choice has a slide.
inline constexpr unsigned NO_SLIDE_TEXT = 5019;
