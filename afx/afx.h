// The windowing framework's ground: Windows itself, texts, run-time class information, exceptions, files.
//
// This folder is a small stand-in for the parts of MFC that the module uses, written from MFC's
// documentation for toolchains that have none. Names, signatures and behaviour are MFC's, so that the
// module's code compiles unchanged against either.
#pragma once

#include "afx/AfxBase.h"
#include "afx/AfxException.h"
#include "afx/AfxFile.h"
#include "afx/AfxObject.h"
#include "afx/AfxString.h"
