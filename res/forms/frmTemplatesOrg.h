#define cmdEnter 1
#define cmdCancel 2
#define cboTemplates 101
#define optChange 102
#define txtRename 104
