// Text as a word processor gives it back.
#pragma once

#include <string>
#include <string_view>

namespace authoring {

// Page text from word-processor text, whose paragraphs end with CR: every CR is followed by LF, and the
// last two characters, the mark that ends the document, are dropped. A CR LF that is there already stays
// one line end. Text of fewer characters than that gives an empty one.
std::u16string TextFromWordProcessor(std::u16string_view text);

}  // namespace authoring
