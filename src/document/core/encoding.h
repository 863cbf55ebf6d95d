// Which encoding a page is in.
#pragma once

#include <string_view>

#include "document/core/code_pages.h"

namespace document {

// The encoding of a file, as a browser reads it: by its mark, else by what it declares in its first 1,024
// bytes, else UTF-8 where the bytes are that and not all ASCII, else the system's code page.
Encoding EncodingOf(std::string_view bytes, const CodePages&);

// The encoding in which to save the text: the current one if it has a mark, else the one that the text
// declares now, else the current one. EncodingOf finds the same in the saved bytes of a page that declares
// one. Where it would not (references have pushed the declaration too far down, or the text begins like a
// mark), the result is UTF-8 with a mark.
Encoding EncodingToSave(std::u16string_view text, const Encoding& current, const CodePages&);

}  // namespace document
