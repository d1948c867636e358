// Numbers of the module's own resources and of the controls in its dialogs. They are part of the
// module's contract with translated builds: a number never changes its meaning.
#pragma once

#define IDS_MODULE_NAME 100

#define IDD_ITEM 102
#define IDC_ITEM_GRID 100
#define IDC_ITEM_PICTURE 101
#define IDC_ITEM_HEADER 102

#define IDD_CHOICE 103
#define IDC_CHOICE_CELL1 104
#define IDC_CHOICE_CELL2 105
#define IDC_CHOICE_CELL3 106
#define IDC_CHOICE_CELL4 107
#define IDC_CHOICE_CELL5 108
#define IDC_CHOICE_CELL6 109
#define IDC_CHOICE_REPLACE 112

#define IDD_PREVIEW 117
#define IDC_PREVIEW_PICTURE 114
