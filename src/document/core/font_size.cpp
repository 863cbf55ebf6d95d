#include "document/core/font_size.h"

#include <cmath>

namespace document {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view WithoutBlanks(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

}  // namespace

float ParseFontSize(std::string_view text) {
    text = WithoutBlanks(text);
    float value = 0;
    float unit = 1;  // of the digit to come, 1 before the point
    bool behindPoint = false;
    bool digits = false;
    for (const char c : text) {
        if (IsDigit(c)) {
            digits = true;
            if (behindPoint) unit /= 10;
            const auto digit = static_cast<float>(c - '0');
            value = behindPoint ? value + digit * unit : value * 10 + digit;
        } else if ((c == '.' || c == ',') && !behindPoint) {
            behindPoint = true;
        } else {
            return 0;
        }
    }
    return digits && value >= kSmallestPoints && value <= kLargestPoints ? value : 0;
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
