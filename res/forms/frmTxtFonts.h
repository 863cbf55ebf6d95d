#define cboFonts 101
#define cboSize 102
#define cmdOK 1
#define cmdCancel 2
