// Names of an item's files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrin::tools {

// A file name without an ending such as "_TMP.TXT"; nothing when it does not have this ending. The ending is
// ASCII; the comparison ignores case, like Windows.
std::optional<std::string> WithoutEnding(std::string_view name, std::wstring_view ending);

}  // namespace tavrin::tools
