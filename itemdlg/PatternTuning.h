// Finds out what the search of a finished program need not do: lengths of a run that need no try because of
// what follows. It changes how much work a match takes, never its result.
#pragma once

#include "itemdlg/PatternProgram.h"

void TunePattern(PatternProgram& program);
