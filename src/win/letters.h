// Upper and lower case by Unicode's rules, whatever the user's language.
#pragma once

#include <string>
#include <string_view>

namespace win {

// Unit for unit, so that positions stay the same.
std::u16string LowerCase(std::u16string_view text);
// As file systems compare names.
std::u16string UpperCase(std::u16string_view text);

}  // namespace win
