// The lines of a page as they go into a file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace files {

struct TerminatedLines {
    std::u16string text;    // every line followed by CR LF, the last one too
    std::size_t count = 0;  // how many lines; at least 1
};

// Splits the text at CR LF, CR CR LF, CR or LF, each of which the edit control counts as one line break.
TerminatedLines TerminateLines(std::u16string_view text);

}  // namespace files
