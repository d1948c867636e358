// The companion module with the texts of items, TavrinRes.dll, as the plug-in finds it: by its bare name.
#pragma once

#include <string>

namespace devhost {

// The full path of TavrinRes.dll; empty when there is none. The one that is loaded comes first.
std::wstring TextModulePath();

// A text by its number; empty when there is no such text or no module.
std::wstring LoadText(unsigned number);

}  // namespace devhost
