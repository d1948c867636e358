// The windowing framework's ground: Windows itself, texts, run-time class information, exceptions, files.
//
// This folder is a small stand-in for the parts of MFC that the module uses, written from MFC's
// documentation for toolchains that have none. Names, signatures and behaviour are MFC's, so that the
// module's code compiles unchanged against either.
#pragma once

#include "AfxBase.h"
#include "AfxException.h"
#include "AfxFile.h"
#include "AfxObject.h"
#include "AfxString.h"
