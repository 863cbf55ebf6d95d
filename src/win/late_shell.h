// What the program asks of the shell, whose DLL is large and seldom needed.
#pragma once

#include "win/late.h"

namespace win {

inline constexpr char kShellDll[] = "shell32.dll";
inline constexpr Late<decltype(&::DragQueryFileA)> kDragQueryFile{kShellDll, "DragQueryFileA"};
inline constexpr Late<decltype(&::FindExecutableA)> kFindExecutable{kShellDll, "FindExecutableA"};
inline constexpr Late<decltype(&::SHFileOperationA)> kFileOperation{kShellDll, "SHFileOperationA"};
inline constexpr Late<decltype(&::ShellExecuteA)> kShellExecute{kShellDll, "ShellExecuteA"};

}  // namespace win
