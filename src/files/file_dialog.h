// The system's file dialogs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "win/windows.h"

namespace files {

struct FileDialog {
    HWND owner = nullptr;
    const char* title = "";
    const wchar_t* filters =
        L"";                // pairs of caption and pattern, each ended by a NUL, an empty one at the end
    DWORD filterIndex = 0;  // from 1; 0 shows the first
    std::string proposedName;
    std::string folder;
    const wchar_t* extension = nullptr;  // added to a name typed without one
    DWORD flags = 0;
};

// The chosen path without blanks around it, which may be empty; nothing when the user cancels or the dialog
// fails.
std::optional<std::string> AskOpenPath(const FileDialog& dialog);
std::optional<std::string> AskSavePath(const FileDialog& dialog);

}  // namespace files
