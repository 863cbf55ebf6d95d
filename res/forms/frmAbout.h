#define cmdOK 1
#define lblDescription 101
#define lblVersion 102
#define lblLinks 110
