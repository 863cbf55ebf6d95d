// Which bytes of the system code page count as the same letter.
#pragma once

#include <array>
#include <cstddef>

namespace authoring {

// Maps every byte to the one that it is compared as. For a single-byte code page the program fills it by
// handing the 256 bytes to CharLowerBuffA; a double-byte page cannot be folded byte by byte.
using FoldTable = std::array<unsigned char, 256>;

constexpr FoldTable MakeFoldTable(bool foldAsciiLetters) {
    FoldTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const bool upper = foldAsciiLetters && i >= 'A' && i <= 'Z';
        table[i] = static_cast<unsigned char>(upper ? i + ('a' - 'A') : i);
    }
    return table;
}

inline constexpr FoldTable kExact = MakeFoldTable(false);
inline constexpr FoldTable kAsciiFold = MakeFoldTable(true);

}  // namespace authoring
