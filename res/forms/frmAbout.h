#define cmdOK 1 /* IDOK */
#define lblDescription 101
#define lblVersion 102
#define lblLinks 110
