// Text between the system's ANSI code page, in which the program holds it, and UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace win {

std::wstring ToWide(std::string_view text);
// What the code page lacks becomes the system's nearest character or a question mark.
std::string ToAnsi(std::wstring_view wide);

}  // namespace win
