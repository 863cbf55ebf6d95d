// Font sizes as text.
#pragma once

#include <string>
#include <string_view>

namespace document {

inline constexpr float kSmallestPoints = 1;
inline constexpr float kLargestPoints = 400;

// The size in points that a decimal number such as "10" or "10.5" gives; a comma may stand for the point,
// and blanks around it. 0 for any other text and for a size that is not between the smallest and the largest.
float ParseFontSize(std::string_view text);

// The number with as many decimals as it needs, at most two.
std::string FontSizeText(float points);

}  // namespace document
