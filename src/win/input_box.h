// A box that asks for one line of text.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

enum class Reply { shown, masked };

// The line that the user typed; empty when the user cancels, as when nothing was typed.
std::string AskText(HWND owner, const std::string& prompt, const std::string& title,
                    Reply reply = Reply::shown);

}  // namespace win
