#define cboFonts 101
#define cboSize 102
#define cmdOK IDOK
#define cmdCancel 2
