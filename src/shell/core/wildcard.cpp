#include "shell/core/wildcard.h"

namespace shell {
namespace {

bool MatchesOne(char c, char pattern) {
    if (pattern == '?') return true;
    if (pattern == '#') return c >= '0' && c <= '9';
    return c == pattern;
}

}  // namespace

bool MatchesWildcard(std::string_view text, std::string_view pattern) {
    // On a mismatch the latest * takes one character more; an earlier one need never be tried again.
    std::size_t at = 0;
    std::size_t in = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (at < text.size()) {
        if (in < pattern.size() && pattern[in] == '*') {
            star = in++;
            resume = at;
        } else if (in < pattern.size() && MatchesOne(text[at], pattern[in])) {
            ++at;
            ++in;
        } else if (star != std::string_view::npos) {
            in = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    while (in < pattern.size() && pattern[in] == '*') ++in;
    return in == pattern.size();
}

}  // namespace shell
