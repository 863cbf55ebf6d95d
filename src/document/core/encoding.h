// Which encoding a page is in.
#pragma once

#include <string_view>

#include "document/core/code_pages.h"

namespace document {

// The encoding of a file, as a browser reads it: by its mark, else by what it declares in its first 1,024
// bytes, else UTF-8 where the bytes are that and not all ASCII, else the system's code page.
Encoding EncodingOf(std::string_view bytes, const CodePages&);

// The encoding to save the text in, as it will be written: a mark stays, else what the text declares now,
// else the current one. Where the page says what it is in, EncodingOf gives the same for the saved bytes;
// where nothing else would be read back so (a declaration that references have pushed too far down, text that
// begins like a mark), that is UTF-8 with a mark.
Encoding EncodingToSave(std::u16string_view text, const Encoding& current, const CodePages&);

}  // namespace document
