// The least that shows the same dialog resource with the same picture, in plain Windows calls.
#pragma once

#include <windows.h>

#include <string>

namespace tavrin::benchmarks {

// Shows dialog `id` of `resources` over `owner`, its picture stretched over the static control `pictureId`.
// Returns when it is confirmed or cancelled.
INT_PTR ShowBareDialog(HMODULE resources, int id, int pictureId, const std::wstring& picture, HWND owner);

}  // namespace tavrin::benchmarks
