// The words of a page that a reader sees, apart from its markup.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace authoring {

// Whether a character (a code point) is a letter.
using IsLetterFunction = bool (*)(char32_t);

struct Word {
    std::size_t start = 0;  // units from the page's start
    std::size_t length = 0;
};

// The words to check for spelling, in order: runs of two or more letters, apostrophes inside included. Left
// out are tags, comments, the contents of scripts and styles, server code, words spelt with entities, and
// words that belong to an address, a file name or a number.
std::vector<Word> FindWords(std::u16string_view page, IsLetterFunction letters);

// The language that the page says it is in, by the first LANG or XML:LANG attribute that holds a language
// tag; empty where it does not say.
std::u16string PageLanguage(std::u16string_view page);

}  // namespace authoring
