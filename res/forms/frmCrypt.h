#define lblURL 101
#define txtURL 102
#define lblName 103
#define txtName 104
#define lblPassWord 105
#define txtPassWord 106
#define chkPass 107
#define cmdSetVal 108
