#define cmdCancel 2
#define cmdReplace 101
#define cmdReplaceAll 102
#define txtReplace 103
#define txtReplaceWith 104
