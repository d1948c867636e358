// The LISP functions that draw:
//   (draw-line P1 P2)   (draw-polyline POINTS [CLOSED])   (draw-circle CENTRE RADIUS)
//   (draw-arc CENTRE RADIUS START END)   (draw-text POINT HEIGHT ANGLE TEXT)   (draw-clear)
// Lengths and coordinates are in drawing units, angles in radians, counter-clockwise. Points are lists of two
// or three numbers; the third is ignored. Each returns T.
#pragma once

#include "devhost/Libraries.h"
#include "devhost/drawing/Drawing.h"
#include "lisp/Evaluator.h"

namespace devhost {

// Both must outlive the functions.
void DefineDrawFunctions(lisp::CEvaluator& evaluator, CDrawing& drawing);

}  // namespace devhost
