// A page as it is read from a file.
#pragma once

#include <string>
#include <string_view>

#include "document/core/encoding.h"

namespace document {

struct Page {
    std::u16string text;
    Encoding encoding;
};

// Whether the text has a line so long that the control is fast only while it wraps it.
bool HasLongLine(std::u16string_view text);
// Whether a word is so long that wrapping makes it slower still.
bool HasLongWord(std::u16string_view text);

// The page that a file of these bytes holds, in the encoding that it names or shows.
Page PageOf(std::string_view bytes);

// A page that no file holds yet: UTF-8 text, in the system's code page until it declares another.
Page NewPage(std::string_view text);

}  // namespace document
