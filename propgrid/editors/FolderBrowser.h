// The shell's folder browser, as the property grid opens it for a folder.
#pragma once

#include <afxwin.h>

#include <string>

namespace tavrin::propgrid {

// The text over the browser's tree: one for the whole module, "Choose a directory" until client code writes
// another one here.
std::wstring& FolderBrowseTitle();

// Lets the user choose a folder of the file system, in a modal dialog over `owner` (may be null). `path` is
// the folder that is selected first; one that does not exist selects nothing.
//
// False, and `path` unchanged, when the user cancels. True otherwise, and `path` is the folder chosen:
// empty when that has no path in the file system of at most MAX_PATH characters.
bool BrowseForFolder(std::wstring& path, HWND owner);

}  // namespace tavrin::propgrid
