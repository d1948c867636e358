// The host's file search, as every part of the module uses it: no name is opened as given.
#pragma once

#include <optional>
#include <string>

// The full path that the host finds for `name` on its search path; nothing when it finds none.
// The host is given a capacity of 254 characters, so a longer path counts as not found.
std::optional<std::wstring> FindFile(const std::wstring& name);
