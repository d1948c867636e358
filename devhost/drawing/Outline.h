// Lines that stand for an entity, and the part of a line that a window shows.
#pragma once

#include <optional>
#include <vector>

#include "devhost/drawing/Drawing.h"

// The line that a pen follows to draw the entity, in drawing units; a closed one ends where it begins.
// Circles and arcs become chords that stay within `tolerance` (drawing units, above zero) of the curve, up
// to some thousand chords. A text has no such line: the answer is empty.
std::vector<SPoint> OutlineOf(const CEntity& entity, double tolerance);

// The part of the line within the box; nothing when it passes by.
std::optional<SLine> Clip(const SLine& line, const SBox& box);
