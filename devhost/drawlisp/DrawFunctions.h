// The LISP functions that draw:
//   (draw-line P1 P2)   (draw-polyline POINTS [CLOSED])   (draw-circle CENTRE RADIUS)
//   (draw-arc CENTRE RADIUS START END)   (draw-text POINT HEIGHT ANGLE TEXT)   (draw-clear)
// Lengths and places are in drawing units, angles in radians, counter-clockwise. Points are lists of two or
// three numbers, of which the first two count. Each gives T.
#pragma once

#include "devhost/drawing/Drawing.h"
#include "lisp/Evaluator.h"

// Both must live as long as the functions are called.
void DefineDrawFunctions(CEvaluator& evaluator, CDrawing& drawing);
