// The dialogs in which the property grid lets the user edit a value: each shows the value, and is true when
// the user confirmed and the value is what was chosen. Otherwise the value is unchanged.
//
// `parent` owns the dialog; it may be null.
#pragma once

#include <afxwin.h>
#include <atlcomtime.h>

#include <string>

#include "propgrid/GridItem.h"

// What the two dialogs that the grid builds itself look like: the title, the font, the captions.
struct CGridDialogLook {
    CWnd* parent;
    std::wstring title;
    CFont* font;
    const CGridTexts& texts;
};

// A text of several lines, ended by CR LF each.
bool AskForText(const CGridDialogLook& look, std::wstring& text);

// A date and a time of day. A choice that does not make one leaves the old date with the status invalid.
bool AskForDateTime(const CGridDialogLook& look, COleDateTime& date);

// A file that exists or may; `filter` is that of CFileDialog, empty for none.
bool AskForFile(CWnd* parent, const std::wstring& filter, std::wstring& path);

// A folder that has a path. `title` is the text over the tree, for this and all later ones; null leaves it.
bool AskForFolder(CWnd* parent, const std::wstring* title, std::wstring& path);

bool AskForColor(CWnd* parent, COLORREF& color);
bool AskForFont(CWnd* parent, LOGFONTW& font);
