// A page's bytes as text and back, with no byte lost.
//
// A byte that is no character of its encoding stands in the text as the lone low surrogate U+DC00 + byte, a
// raw byte, and becomes that byte again. Decoded text holds no other lone surrogates.
#pragma once

#include <string>
#include <string_view>

#include "document/core/code_pages.h"

namespace document {

// The text without the mark. Encode gives these very bytes again (with a mark, if they begin with it).
std::u16string Decode(const Encoding&, std::string_view bytes, const CodePages&);

// The bytes, the mark first. For text that may hold what the encoding cannot, call WithReferences first. In
// UTF-16 a raw byte that is half a unit and has text behind it becomes the unit of its value.
std::string Encode(const Encoding&, std::u16string_view text, const CodePages&);

// Whether the character can be written and is read as itself; a raw byte can always.
bool Holds(const Encoding&, char32_t character, const CodePages&);

// The text with each character that the encoding cannot hold as its numeric reference ("&#321;"), all else
// and the raw bytes as they are. A lone surrogate that is no raw byte becomes U+FFFD.
std::u16string WithReferences(const Encoding&, std::u16string_view text, const CodePages&);

// Strictly: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsUtf8(std::string_view bytes);

}  // namespace document
