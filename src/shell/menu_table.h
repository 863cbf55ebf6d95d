// The menu tree: captions, shortcuts and what each needs.
#pragma once

#include <array>

#include "menu_ids.h"
#include "tool_buttons.h"
#include "win/menu_bar.h"

namespace shell {

using win::MenuKind;
using win::MenuRow;
using win::Needs;

constexpr MenuRow Popup(Command id, int level, const char* caption, Needs needs = Needs::nothing) {
    return {id, static_cast<std::uint8_t>(level), caption, "", needs, MenuKind::popup};
}
constexpr MenuRow Item(Command id, int level, const char* caption, const char* shortcut = "",
                       Needs needs = Needs::nothing) {
    return {id, static_cast<std::uint8_t>(level), caption, shortcut, needs, MenuKind::item};
}
constexpr MenuRow Separator(int id, int level) {
    return {static_cast<Command>(id), static_cast<std::uint8_t>(level), "", "", Needs::nothing,
            MenuKind::separator};
}
constexpr MenuRow Hidden(int id, int level, Needs needs = Needs::nothing) {
    return {static_cast<Command>(id), static_cast<std::uint8_t>(level), "", "", needs, MenuKind::hidden};
}

// clang-format off
inline constexpr auto kMenu = std::to_array<MenuRow>({
    Popup(mnuFile, 0, "File"),
        Item(mnuFileNew, 1, "New", "F2"),
        Item(mnuFileOpen, 1, "Open", "F3"),
        Item(mnuFileClose, 1, "Close", "F6", Needs::document),
        Separator(mnuFileSep1, 1),
        Item(mnuFileSave, 1, "Save", "F7", Needs::document),
        Item(mnuFileSaveAs, 1, "Save As", "F8", Needs::document),
        Item(mnuFilePrint, 1, "Print", "Ctrl+P", Needs::document),
        Separator(mnuFileSep2, 1),
        Hidden(mnuFileMRU, 1), Hidden(mnuFileMRU + 1, 1), Hidden(mnuFileMRU + 2, 1), Hidden(mnuFileMRU + 3, 1),
        Hidden(mnuFileMRU + 4, 1), Hidden(mnuFileMRU + 5, 1), Hidden(mnuFileMRU + 6, 1), Hidden(mnuFileMRU + 7, 1),
        Separator(mnuFileSep3, 1),
        Item(mnuFileExit, 1, "Exit", "F5"),
    Popup(mnuCurrent, 0, "Current", Needs::document),
    Popup(mnuEdit, 0, "Edit", Needs::document),
        Item(mnuEditCut, 1, "Cut             Ctrl+X"),
        Item(mnuEditCopy, 1, "Copy          Ctrl+C"),
        Item(mnuEditPaste, 1, "Paste         Ctrl+V"),
        Separator(mnuEditSep1, 1),
        Item(mnuEditAll, 1, "Select All    Ctrl+A"),
        Item(mnuEditClear, 1, "Clear All"),
        Separator(mnuEditSep2, 1),
        Item(mnuEditUndo, 1, "Undo          Ctrl+Z"),
    Popup(mnuWindow, 0, "Window", Needs::document),
        Item(mnuWind, 1, "Normal", "F9"),
        Item(mnuWind + 1, 1, "Minimize", "F11"),
        Item(mnuWind + 2, 1, "Maximize", "F12"),
    Popup(mnuTags, 0, "Tags", Needs::document),
        Popup(mnuTagsBasic, 1, "Basic"),
            Item(mnuTagsBasicList, 2, "Html"), Item(mnuTagsBasicList + 1, 2, "Head"),
            Item(mnuTagsBasicList + 2, 2, "Title"), Item(mnuTagsBasicList + 3, 2, "Body"),
        Popup(mnuTagsBody, 1, "Body Includes"),
            Item(mnuTagsBodyInc, 2, "Background"), Item(mnuTagsBodyInc + 1, 2, "bgColor"),
            Item(mnuTagsBodyInc + 2, 2, "Text Color"), Item(mnuTagsBodyInc + 3, 2, "Link Colors"),
            Item(mnuTagsBodyInc + 4, 2, "Onload"),
        Popup(mnuTagsMod, 1, "Text Modifiers"),
            Item(mnuTagsModList, 2, "Bold"), Item(mnuTagsModList + 1, 2, "Italics"),
            Item(mnuTagsModList + 2, 2, "Strong"), Item(mnuTagsModList + 3, 2, "Underline"),
            Item(mnuTagsModList + 4, 2, "Preformatted"), Item(mnuTagsModList + 5, 2, "COMMENT"),
        Popup(mnuTagsFont, 1, "Font Tags"),
            Item(mnuTagsFontList, 2, "Plain <FONT>"), Item(mnuTagsFontList + 1, 2, "_w/Size"),
            Item(mnuTagsFontList + 2, 2, "_w/Color"), Item(mnuTagsFontList + 3, 2, "_w/Face"),
            Item(mnuTagsFontList + 4, 2, "_w/All"),
        Separator(mnuTagsSep1, 1),
        Item(mnuTagsImg, 1, "Image"),
        Item(mnuTagsHref, 1, "Anchor"),
        Popup(mnuTagsRule, 1, "Rule"),
            Item(mnuTagsRuleList, 2, "Plain <HR>"), Item(mnuTagsRuleList + 1, 2, "_w/Size"),
            Item(mnuTagsRuleList + 2, 2, "_w/Width"), Item(mnuTagsRuleList + 3, 2, "_w/Color"),
            Item(mnuTagsRuleList + 4, 2, "_w/Align"), Item(mnuTagsRuleList + 5, 2, "_w/All"),
        Popup(mnuTagsAlign, 1, "Alignment"),
            Item(mnuTagsAlignList, 2, "Center"), Item(mnuTagsAlignList + 1, 2, "Blockquote"),
            Item(mnuTagsAlignList + 2, 2, "DIV"), Item(mnuTagsAlignList + 3, 2, "Span"),
        Separator(mnuTagsSep2, 1),
        Popup(mnutagsTable, 1, "Table"),
            Item(mnutagsTableList, 2, "Table"), Item(mnutagsTableList + 1, 2, "_w/No Border"),
        Separator(mnuTagsSep3, 1),
        Popup(mnuTagsFSet, 1, "FrameSet"),
            Item(mnuTagsFSetList, 2, "Frameset"), Item(mnuTagsFSetList + 1, 2, "_w/No Border"),
            Separator(mnuTagsFSetList + 2, 2), Item(mnuTagsFSetList + 3, 2, "<noframes>"),
        Popup(mnuTagsFrame, 1, "Frame"),
            Item(mnuTagsFrameList, 2, "Frame"), Item(mnuTagsFrameList + 1, 2, "Margins"),
            Item(mnuTagsFrameList + 2, 2, "No Scroll"), Item(mnuTagsFrameList + 3, 2, "NORESIZE"),
        Separator(mnuTagsSep4, 1),
        Popup(mnuTagsForm, 1, "Form"),
            Item(mnuTagsFormList, 2, "Use GET"), Item(mnuTagsFormList + 1, 2, "Use POST"),
            Separator(mnuTagsFormList + 2, 2), Item(mnuTagsFormList + 3, 2, "TextArea"),
            Separator(mnuTagsFormList + 4, 2), Item(mnuTagsFormList + 5, 2, "Select"),
            Item(mnuTagsFormList + 6, 2, "_w/Multiple"),
        Popup(mnuTagsInput, 1, "Input"),
            Item(mnuTagsInputList, 2, "Text"), Item(mnuTagsInputList + 1, 2, "Hidden"),
            Item(mnuTagsInputList + 2, 2, "Radio"), Item(mnuTagsInputList + 3, 2, "Checkbox"),
            Item(mnuTagsInputList + 4, 2, "Password"), Item(mnuTagsInputList + 5, 2, "File"),
            Item(mnuTagsInputList + 6, 2, "Reset"), Item(mnuTagsInputList + 7, 2, "Submit"),
        Separator(mnuTagsSep5, 1),
        Popup(mnuTagsLs, 1, "List"),
            Item(mnuTagsLsList, 2, "Dots"), Item(mnuTagsLsList + 1, 2, "Circles"),
            Item(mnuTagsLsList + 2, 2, "Squares"),
        Popup(mnuTagsOl, 1, "Ordered List"),
            Item(mnuTagsOlList, 2, "Numbers"), Item(mnuTagsOlList + 1, 2, "Capitol Letters"),
            Item(mnuTagsOlList + 2, 2, "LCase Letters"), Item(mnuTagsOlList + 3, 2, "Cap. Roman Numerals"),
            Item(mnuTagsOlList + 4, 2, "LCase Roman Numerals"),
        Item(mnutagsDLs, 1, "Definition List"),
        Separator(mnuTagsSep6, 1),
        Popup(mnuTagsSpecial, 1, "Special Characters"),
            Item(mnuTagsSpecialChar, 2, "quote"), Item(mnuTagsSpecialChar + 1, 2, "space"),
            Item(mnuTagsSpecialChar + 2, 2, "less than"), Item(mnuTagsSpecialChar + 3, 2, "greater than"),
            Item(mnuTagsSpecialChar + 4, 2, "amperstand"), Item(mnuTagsSpecialChar + 5, 2, "copyright"),
            Item(mnuTagsSpecialChar + 6, 2, "trademark"),
        Separator(mnuTagsSep7, 1),
        Item(mnuTagsDate, 1, "Date"),
    Popup(mnuScripts, 0, "Scripts", Needs::document),
        Popup(mnuScriptTag, 1, "Script Tags"),
            Item(mnuScriptTags, 2, "JavaScript"), Item(mnuScriptTags + 1, 2, "VB Script"),
            Item(mnuScriptTags + 2, 2, "Style"), Item(mnuScriptTags + 3, 2, "Applet"),
            Item(mnuScriptTags + 4, 2, "Object"), Item(mnuScriptTags + 5, 2, "Embed"),
        Popup(mnuScriptDrop, 1, "Drop Menus"),
            Item(mnuScriptDrops, 2, "w/Redirect"), Item(mnuScriptDrops + 1, 2, "above w/ GO button"),
            Item(mnuScriptDrops + 2, 2, "w/ New Window Option"), Item(mnuScriptDrops + 3, 2, "Dynamic Duel-Combo"),
    Popup(mnuUpload, 0, "Upload"),
        Item(mnuUploadFile, 1, "Upload File", "", Needs::document),
        Separator(mnuUploadSep1, 1),
        Hidden(mnuUploadSites, 1), Hidden(mnuUploadSites + 1, 1), Hidden(mnuUploadSites + 2, 1),
        Hidden(mnuUploadSites + 3, 1), Hidden(mnuUploadSites + 4, 1), Hidden(mnuUploadSites + 5, 1),
        Hidden(mnuUploadSites + 6, 1), Hidden(mnuUploadSites + 7, 1), Hidden(mnuUploadSites + 8, 1),
        Hidden(mnuUploadSites + 9, 1), Hidden(mnuUploadSites + 10, 1), Hidden(mnuUploadSites + 11, 1),
        Hidden(mnuUploadSites + 12, 1),
        Separator(mnuUploadSep2, 1),
        Item(mnuUploadSite, 1, "Add A Site"),
    Popup(mnuOpt, 0, "Options"),
        Popup(mnuOptDefOpen, 1, "Default File Open"),
            Item(mnuOptDefOpenList, 2, ".htm"), Item(mnuOptDefOpenList + 1, 2, ".txt"),
            Item(mnuOptDefOpenList + 2, 2, ".asp"), Item(mnuOptDefOpenList + 3, 2, "All Files"),
        Popup(mnuOptDefSave, 1, "Default File Save"),
            Item(mnuOptDefSaveList, 2, ".htm"), Item(mnuOptDefSaveList + 1, 2, ".txt"),
            Item(mnuOptDefSaveList + 2, 2, ".asp"), Item(mnuOptDefSaveList + 3, 2, "All Files"),
        Separator(mnuOptsSep1, 1),
        Popup(mnuOptsTemp, 1, "Templates"),
            Item(mnuOptsTempAdd, 2, "Add  Current Page", "", Needs::document),
            Hidden(mnuOptsTempOrg, 2),
            {mnuOptsTempSep1, 2, "", "", Needs::nothing, MenuKind::hiddenSeparator},
            Hidden(mnuOptsTempList, 2), Hidden(mnuOptsTempList + 1, 2), Hidden(mnuOptsTempList + 2, 2),
            Hidden(mnuOptsTempList + 3, 2), Hidden(mnuOptsTempList + 4, 2), Hidden(mnuOptsTempList + 5, 2),
            Hidden(mnuOptsTempList + 6, 2), Hidden(mnuOptsTempList + 7, 2), Hidden(mnuOptsTempList + 8, 2),
        Separator(mnuOptsSep2, 1),
        Popup(mnuOptTabs, 1, "Tab Length"),
            Item(mnuOptTabsList, 2, "3"), Item(mnuOptTabsList + 1, 2, "4"), Item(mnuOptTabsList + 2, 2, "5"),
            Item(mnuOptTabsList + 3, 2, "6"), Item(mnuOptTabsList + 4, 2, "7"), Item(mnuOptTabsList + 5, 2, "8"),
        Item(mnuOptWW, 1, "Word Wrap", "Ctrl+W", Needs::document),
        Item(mnuOptFont, 1, "Fonts"),
    Popup(mnuHelp, 0, "Help"),
        Item(mnuHelpCont, 1, "Contents", "F1"),
        Item(mnuHelpAbout, 1, "About", "F4"),
        Item(mnuHelpOnline, 1, "Online Help"),
});
// clang-format on

// Keys beyond the menu's own that hands expect. The caption is a name for readers of the table only.
inline constexpr auto kExtraKeys = std::to_array<MenuRow>({
    Item(mnuFileNew, 0, "New", "Ctrl+N"),
    Item(mnuFileOpen, 0, "Open", "Ctrl+O"),
    Item(mnuFileSave, 0, "Save", "Ctrl+S"),
    Item(tbrFind, 0, "Find", "Ctrl+F"),
    Item(tbrReplace, 0, "Replace", "Ctrl+H"),
});

}  // namespace shell
