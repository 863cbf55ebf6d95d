// Letters, as Unicode and no language of the user's has them.
#pragma once

#include <string>
#include <string_view>

namespace win {

// Unit for unit, so that positions stay what they are.
std::u16string LowerCase(std::u16string_view text);
// As file systems compare names.
std::u16string UpperCase(std::u16string_view text);

}  // namespace win
