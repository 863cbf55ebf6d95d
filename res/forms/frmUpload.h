#define txtCurDir 101
#define lstRemoteFiles 102
#define cmdUp 103
#define cmdRefresh 104
#define cmdUpDir 105
#define cmdMakeDir 106
#define lblMode 107
#define lblFtpSite 108
#define upType 110 /* 3 items */
#define txtPassword 120
#define cmdPassword 121
#define cmdShut 122

#define mnuRClist 130 /* 6 items */
#define mnuDirDelete 140
