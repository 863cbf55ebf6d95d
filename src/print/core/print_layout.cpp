#include "print/core/print_layout.h"

#include <algorithm>
#include <utility>

namespace modPrint {
namespace {

constexpr std::u16string_view kSample = u"Web Design";  // ten characters of ordinary text
constexpr int kSampleLength = 10;
constexpr int kSampleWidthWithoutMetrics = 740;
constexpr int kLineHeightWithoutMetrics = 240;
constexpr int kRightMarginCharacters = 30;
constexpr int kBottomMargin = 2000;
constexpr int kHeaderTop = 100;
constexpr int kBodyTop = 1440;
constexpr int kBodyLeft = 780;

}  // namespace

PrintLayout::PrintLayout(std::u16string_view text, std::u16string_view title, const Paper& paper,
                         Measure measure, std::size_t tabLength)
    : text_(ExpandTabs(text, tabLength)), header_(10, u' '), measure_(std::move(measure)) {
    header_ += title;
    const int sampleWidth = measure_.width(kSample);
    const int tenCharacters = sampleWidth > 0 ? sampleWidth : kSampleWidthWithoutMetrics;
    lineWidth_ = paper.width - tenCharacters * kRightMarginCharacters / kSampleLength;
    likelyLength_ = static_cast<std::size_t>(std::max(lineWidth_ * kSampleLength / tenCharacters, 1));
    lineHeight_ = paper.lineHeight > 0 ? paper.lineHeight : kLineHeightWithoutMetrics;
    bottomLimit_ = paper.height - kBottomMargin;
}

std::optional<PlacedLine> PrintLayout::next() {
    if (top_ == 0) {
        if (text_.empty()) return std::nullopt;
        top_ = kBodyTop;
        return PlacedLine{header_, 0, kHeaderTop, true};
    }
    const bool isFirst = position_ == 0;
    const std::optional<std::u16string_view> line =
        NextPrintLine(text_, position_, lineWidth_, measure_, likelyLength_);
    // Asked before the page is: a text that fills its last page leaves no empty one behind.
    if (!line) return std::nullopt;
    const bool startsPage = !isFirst && top_ >= bottomLimit_;
    if (startsPage) top_ = kBodyTop;
    return PlacedLine{*line, kBodyLeft, std::exchange(top_, top_ + lineHeight_), startsPage};
}

}  // namespace modPrint
