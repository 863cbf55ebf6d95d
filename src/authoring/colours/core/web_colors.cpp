#include "authoring/colours/core/web_colors.h"

namespace authoring {
namespace {

constexpr int kBlock = 6;
constexpr int kStep = 0x33;

unsigned char Channel(int steps) {
    return static_cast<unsigned char>(kStep * steps);
}

}  // namespace

SwatchColor ColorOfSwatch(int index) {
    const int row = index / kSwatchColumns;
    const int column = index % kSwatchColumns;
    return {Channel(2 * (row / kBlock) + column / kBlock), Channel(row % kBlock), Channel(column % kBlock)};
}

SwatchPlace PlaceOfSwatch(int index) {
    return {315 * (index % kSwatchColumns), 15 + 300 * (index / kSwatchColumns), 285};
}

std::string TextOfSwatch(int index) {
    constexpr char kHex[] = "0123456789ABCDEF";
    const SwatchColor color = ColorOfSwatch(index);
    std::string text = "\"#";
    for (const int channel : {color.red, color.green, color.blue}) {
        text += kHex[channel / 16];
        text += kHex[channel % 16];
    }
    text += '"';
    return text;
}

}  // namespace authoring
