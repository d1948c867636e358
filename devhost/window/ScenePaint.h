// The picture of a drawing: the sheet with its dots and axes, and the entities on it.
#pragma once

#include <windows.h>

#include "devhost/drawing/Drawing.h"
#include "devhost/drawing/ViewTransform.h"

// Covers `client` (pixels, from its upper left at 0, 0) with what the transform shows of the drawing.
void PaintScene(HDC dc, const RECT& client, const CDrawing& drawing, const CViewTransform& view);
