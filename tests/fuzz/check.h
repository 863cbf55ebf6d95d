// What every fuzz target shares: its entry point, its checks, and how it takes its input apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

inline void Check(bool holds) {
    if (!holds) std::abort();
}

// Tries one input. Each target defines its own.
void Try(std::string_view input);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Try({reinterpret_cast<const char*>(data), size});
    return 0;
}

inline unsigned TakeByte(std::string_view& rest) {
    const auto byte = static_cast<unsigned char>(rest.front());
    rest.remove_prefix(1);
    return byte;
}

// Text of one unit for each byte: the last two are the halves of a character beyond U+FFFF.
inline std::u16string Units(std::string_view bytes) {
    std::u16string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte == 0xFE ? u'\xD83D' : byte == 0xFF ? u'\xDE00' : static_cast<char16_t>(byte);
    }
    return text;
}

// Takes the text up to the next line end, and the line end.
inline std::string TakeLine(std::string_view& rest) {
    const std::string line(rest.substr(0, rest.find('\n')));
    rest.remove_prefix(line.size() == rest.size() ? line.size() : line.size() + 1);
    return line;
}
