#define lblSite 101
#define lblInfo 102
#define cmdUpload 103
#define cmdDelete 104
