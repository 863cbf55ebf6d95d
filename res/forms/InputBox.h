#define lblPrompt 101
#define txtReply 102
