// The 216 web-safe colours as the colour chart shows them: 18 rows of 12 boxes, made of six blocks of
// 6 by 6, two across and three down. In a block green rises downwards and blue to the right; red rises
// from block to block.
#pragma once

#include <string>

namespace authoring {

inline constexpr int kSwatchColumns = 12;
inline constexpr int kSwatchRows = 18;
inline constexpr int kSwatchCount = kSwatchColumns * kSwatchRows;

struct SwatchColor {
    unsigned char red;
    unsigned char green;
    unsigned char blue;
    friend bool operator==(const SwatchColor&, const SwatchColor&) = default;
};

struct SwatchPlace {
    int left;  // twips, from the top left corner of the chart's client area
    int top;   // twips
    int size;  // twips, width and height of the box
    friend bool operator==(const SwatchPlace&, const SwatchPlace&) = default;
};

// `index` is 0 to kSwatchCount - 1, row by row, in all three.
SwatchColor ColorOfSwatch(int index);
SwatchPlace PlaceOfSwatch(int index);

// The colour as it goes into an attribute, quotes included: "\"#CCFF00\"".
std::string TextOfSwatch(int index);

}  // namespace authoring
