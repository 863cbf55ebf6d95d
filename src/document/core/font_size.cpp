#include "document/core/font_size.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "win/core/ascii.h"

namespace document {

float ParseFontSize(std::string_view text) {
    std::string number(win::Trimmed(text));
    std::replace(number.begin(), number.end(), ',', '.');
    if (number.find_first_not_of("0123456789.") != std::string::npos) return 0;
    char* end = nullptr;
    const auto points = static_cast<float>(std::strtod(number.c_str(), &end));
    return *end == '\0' && points >= kSmallestPoints && points <= kLargestPoints ? points : 0;
}

std::string FontSizeText(float points) {
    const long hundredths = std::lround(points * 100);
    std::string text = std::to_string(hundredths / 100);
    if (hundredths % 100 == 0) return text;
    text += '.';
    text += static_cast<char>('0' + hundredths / 10 % 10);
    if (hundredths % 10 != 0) text += static_cast<char>('0' + hundredths % 10);
    return text;
}

}  // namespace document
