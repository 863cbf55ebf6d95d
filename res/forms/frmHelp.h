#define cmdClose 2 /* IDCANCEL, so that Esc closes too */
#define Picture1 100
#define Label1 120
#define lblHead 121
#define Frame1 122
#define lblWords 123

#define mnuFeatures 200
#define mnuFeatDrag 201
#define mnuFeatFTP 202
#define mnuFeatLine 203
#define mnuFeatUpdate 204
#define mnuFeatPre 205
#define mnuFeatSet 206
#define mnuFeatSpell 207
#define mnuFeatSpy 208
#define mnuFeatCur 209
#define mnuFeatMRU 210
#define mnuFeatNotepad 211
#define mnuFeatWrap 212
#define mnuFeatColors 213
#define mnuFeatPrint 214
#define mnuHelpSep1 215
#define mnuFeatClose 216
