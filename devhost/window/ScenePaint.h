// Paints a drawing: background, grid dots, axes and entities.
#pragma once

#include <windows.h>

#include "devhost/drawing/Drawing.h"
#include "devhost/drawing/ViewTransform.h"

namespace devhost {

// Fills `client` (pixels, with 0, 0 at its upper left) with the visible part of the drawing.
void PaintScene(HDC dc, const RECT& client, const CDrawing& drawing, const CViewTransform& view);

// Draws entities in grey over what is there. Of very many, the first ones stand for all, so that the mouse is
// not held up.
void PaintPlacement(HDC dc, const RECT& client, const std::vector<Entity>& entities,
                    const CViewTransform& view);

}  // namespace devhost
