// Names of an item's files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// A file's name without an ending such as "_TMP.TXT"; nothing when it ends otherwise. The ending is ASCII,
// and letters in either case are the same, as they are for the system that the module runs on.
std::optional<std::string> WithoutEnding(std::string_view name, std::wstring_view ending);
