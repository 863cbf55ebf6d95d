// What a fuzz target must find true, and how it takes its input apart.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

inline void Check(bool holds) {
    if (!holds) std::abort();
}

// The text up to the next line end, which goes too.
inline std::string TakeLine(std::string_view& rest) {
    const std::string line(rest.substr(0, rest.find('\n')));
    rest.remove_prefix(line.size() == rest.size() ? line.size() : line.size() + 1);
    return line;
}
