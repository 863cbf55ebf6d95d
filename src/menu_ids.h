// The command of every menu item and toolbar button. An item array keeps its index in the low bits: item i
// of mnuFileMRU has the command mnuFileMRU + i.
#pragma once

#include <cstdint>

using Command = std::uint16_t;

// clang-format off
enum : Command {
    mnuFile = 0x0100, mnuFileNew, mnuFileOpen, mnuFileClose, mnuFileSep1, mnuFileSave, mnuFileSaveAs,
    mnuFilePrint, mnuFileSep2, mnuFileSep3, mnuFileExit,
    mnuFileMRU = 0x0120,

    mnuCurrent = 0x0140,

    mnuEdit = 0x0150, mnuEditCut, mnuEditCopy, mnuEditPaste, mnuEditSep1, mnuEditAll, mnuEditClear,
    mnuEditSep2, mnuEditUndo,

    mnuWindow = 0x0160,
    mnuWind = 0x0170,

    mnuTags = 0x0200, mnuTagsBasic, mnuTagsBody, mnuTagsMod, mnuTagsFont, mnuTagsSep1, mnuTagsImg,
    mnuTagsHref, mnuTagsRule, mnuTagsAlign, mnuTagsSep2, mnutagsTable, mnuTagsSep3, mnuTagsFSet,
    mnuTagsFrame, mnuTagsSep4, mnuTagsForm, mnuTagsInput, mnuTagsSep5, mnuTagsLs, mnuTagsOl, mnutagsDLs,
    mnuTagsSep6, mnuTagsSpecial, mnuTagsSep7, mnuTagsDate,
    mnuTagsBasicList = 0x0220,
    mnuTagsBodyInc = 0x0230,
    mnuTagsModList = 0x0240,
    mnuTagsFontList = 0x0250,
    mnuTagsRuleList = 0x0260,
    mnuTagsAlignList = 0x0270,
    mnutagsTableList = 0x0280,
    mnuTagsFSetList = 0x0290,
    mnuTagsFrameList = 0x02A0,
    mnuTagsFormList = 0x02B0,
    mnuTagsInputList = 0x02C0,
    mnuTagsLsList = 0x02D0,
    mnuTagsOlList = 0x02E0,
    mnuTagsSpecialChar = 0x02F0,

    mnuScripts = 0x0300, mnuScriptTag, mnuScriptDrop,
    mnuScriptTags = 0x0310,
    mnuScriptDrops = 0x0320,

    mnuUpload = 0x0330, mnuUploadFile, mnuUploadSep1, mnuUploadSep2, mnuUploadSite,
    mnuUploadSites = 0x0340,

    mnuOpt = 0x0350, mnuOptDefOpen, mnuOptDefSave, mnuOptsSep1, mnuOptsTemp, mnuOptsTempAdd,
    mnuOptsTempOrg, mnuOptsTempSep1, mnuOptsSep2, mnuOptTabs, mnuOptWW, mnuOptFont,
    mnuOptDefOpenList = 0x0360,
    mnuOptDefSaveList = 0x0370,
    mnuOptsTempList = 0x0380,
    mnuOptTabsList = 0x0390,

    mnuHelp = 0x03A0, mnuHelpCont, mnuHelpAbout, mnuHelpOnline,

    // Toolbar buttons that no menu item stands for.
    tbrFind = 0x0400, tbrReplace, tbrReset, tbrPreview, tbrSpelling, tbrColor,
    // Opens the list of all toolbar commands, for hands that stay on the keyboard.
    tbrList = 0x0410,

    // The buttons of the toolbar by their index: button i has the id tbrPicture1 + i. Ids above the last one's stand
    // for no button.
    tbrPicture1 = 0x0420,
    tbrPicture1End = 0x0440,

    // The items of the window list, and above them the range that the MDI client numbers its children in.
    windowList = 0x1000,
    mdiChildren = 0xC000,
};
// clang-format on
