// The words of a page that a reader sees, apart from its markup.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace authoring {

// Which bytes of the code page are letters.
using LetterTable = std::array<bool, 256>;

constexpr LetterTable MakeAsciiLetters() {
    LetterTable letters{};
    for (std::size_t i = 'A'; i <= 'Z'; ++i) letters[i] = letters[i + ('a' - 'A')] = true;
    return letters;
}

inline constexpr LetterTable kAsciiLetters = MakeAsciiLetters();

struct Word {
    std::size_t start = 0;  // bytes from the page's start
    std::size_t length = 0;
};

// The words to check for spelling, in order: runs of two or more letters, apostrophes inside included. Left
// out are tags, comments, the contents of scripts and styles, server code, words spelt with entities, and
// words that belong to an address, a file name or a number.
std::vector<Word> FindWords(std::string_view page, const LetterTable& letters);

}  // namespace authoring
