// The toolbar's buttons, which the help window shows once more.
#pragma once

#include <array>

#include "menu_ids.h"
#include "win/tool_bar.h"

inline constexpr auto kToolbar = std::to_array<win::ToolButton>({
    {"New", mnuFileNew, "new"},
    {"Open", mnuFileOpen, "open"},
    {"Close", mnuFileClose, "close"},
    {"Save", mnuFileSave, "save"},
    {"Save As", mnuFileSaveAs, "save_as"},
    {"Cut", mnuEditCut, "cut", true},
    {"Copy", mnuEditCopy, "copy"},
    {"Paste", mnuEditPaste, "paste"},
    {"Undo Cut/Paste", mnuEditUndo, "undo"},
    {"Find", tbrFind, "find", true},
    {"Replace", tbrReplace, "replace"},
    {"Reset", tbrReset, "reset", true},
    {"Preview", tbrPreview, "preview"},
    {"Spelling", tbrSpelling, "spelling"},
    {"Print", mnuFilePrint, "print"},
    {"Color", tbrColor, "color", true},
    {"Help", mnuHelpCont, "help"},
});
