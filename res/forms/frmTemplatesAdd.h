#define cmdEnter 1
#define cmdCancel 2
#define lblFilename 101
#define txtFilename 102
#define lblID 103
#define txtID 104
