// Wildcard patterns.
#pragma once

#include <string_view>

namespace shell {

// Whether all of `text` matches: * stands for any run, ? for one character, # for one digit; the rest,
// letters in their case, for itself.
bool MatchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace shell
