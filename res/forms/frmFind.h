#define cmdCancel 2
#define cmdFind 101
#define cmdFindNext 102
#define txtFind 103
#define lblFindPrompt 104
#define lblResult 105
