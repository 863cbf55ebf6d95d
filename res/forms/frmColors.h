#define lblColor 101
