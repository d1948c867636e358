// The LISP functions of DevHost that need its window or the texts of items.
#pragma once

#include "devhost/Libraries.h"
#include "devhost/window/MainWindow.h"
#include "lisp/Evaluator.h"

namespace devhost {

// (draw-fit), (res-text NUMBER). The window must outlive the evaluator.
void DefineHostFunctions(lisp::CEvaluator& evaluator, CMainWindow& window);

}  // namespace devhost
