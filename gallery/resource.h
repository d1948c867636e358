// Ids of the gallery's dialog and its controls.
#pragma once

#define IDD_GALLERY 100

#define IDC_GALLERY_GRID 101
#define IDC_GALLERY_LOG 102
#define IDC_ACCEPT_VALUES 103
#define IDC_RESET 104
#define IDC_LOG_LABEL 105
#define IDC_MODE_FRAME 106
#define IDC_LOOK_FRAME 107

// In the order of the grid's display modes.
#define IDC_MODE_CATEGORIZED 110
#define IDC_MODE_SORTED 111
#define IDC_MODE_FLAT 112

#define IDC_SHADE_HEADERS 120
#define IDC_DRAW_LINES 121
#define IDC_DRAW_DIVIDER 122
#define IDC_FOCUS_NON_EDITABLE 123
#define IDC_BOLD_MODIFIED 124
#define IDC_BOLD_EDITABLE 125
