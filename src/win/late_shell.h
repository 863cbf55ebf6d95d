// What the program asks of the shell, whose DLL is large and seldom needed.
#pragma once

#include "win/late.h"

#include <shlobj.h>

namespace win {

inline constexpr char kShellDll[] = "shell32.dll";
inline constexpr Late<decltype(&::DragQueryFileW)> kDragQueryFile{kShellDll, "DragQueryFileW"};
inline constexpr Late<decltype(&::SHGetFolderPathW)> kFolderPath{kShellDll, "SHGetFolderPathW"};
inline constexpr Late<decltype(&::FindExecutableW)> kFindExecutable{kShellDll, "FindExecutableW"};
inline constexpr Late<decltype(&::SHFileOperationW)> kFileOperation{kShellDll, "SHFileOperationW"};
inline constexpr Late<decltype(&::ShellExecuteW)> kShellExecute{kShellDll, "ShellExecuteW"};

}  // namespace win
