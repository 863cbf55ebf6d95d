#include "authoring/images/core/image_info.h"

#include <gtest/gtest.h>

#include <tuple>

#include "core/kept_files.h"

namespace {

using namespace std::string_literals;
using namespace authoring;

using Size = std::pair<float, float>;

Size SizeOf(ImageType type, std::string_view head) {
    return {ImageWidth(type, head), ImageHeight(type, head)};
}

const std::tuple<const char*, ImageType, Size> kEncoded[] = {
    {"gif87a.gif", ImageType::gif, {120, 60}},
    {"gif89a.gif", ImageType::gif, {120, 60}},
    {"jfif.jpg", ImageType::jpeg, {120, 60}},
    {"progressive.jpg", ImageType::jpeg, {0, 0}},
    {"late_frame.jpg", ImageType::jpeg, {0, 0}},
    {"exif_only.jpg", ImageType::unrecognized, {0, 0}},
    {"adobe_cmyk.jpg", ImageType::unrecognized, {0, 0}},
    {"image.png", ImageType::unrecognized, {0, 0}},
    {"bitmap.bmp", ImageType::bitmap, {12, 6}},
    {"bitmap_top_down.bmp", ImageType::bitmap, {12, -6}},
};

TEST(ImageInfo, ReadsFilesOfRealEncodersFromTheBytesThatItAsksFor) {
    for (const auto& [file, type, size] : kEncoded) {
        const std::string bytes = kept::Read("fuzz/corpus/image_info/"s + file);
        EXPECT_EQ(DetectImageType(bytes.substr(0, kImageTypeBytes)), type) << file;
        EXPECT_EQ(SizeOf(type, bytes.substr(0, ImageSizeBytes(type))), size) << file;
    }
}

TEST(ImageInfo, TheTypeIsTheLastThatMatches) {
    EXPECT_EQ(DetectImageType("BM"), ImageType::bitmap);
    EXPECT_EQ(DetectImageType("GIFfy"), ImageType::gif);
    EXPECT_EQ(DetectImageType("gif89a"), ImageType::unrecognized);
    EXPECT_EQ(DetectImageType("GIF89a JFIF\0"s), ImageType::jpeg);
    EXPECT_EQ(DetectImageType("JFIF"), ImageType::unrecognized);
    EXPECT_EQ(DetectImageType(std::string(95, ' ') + "JFIF\0"s), ImageType::jpeg);
    EXPECT_EQ(DetectImageType(std::string(96, ' ') + "JFIF\0"s), ImageType::unrecognized);
}

TEST(ImageInfo, TheFrameMarkerHasToBeginAndEndInTheFirstThousandBytes) {
    const std::string frame = "\xFF\xC0\x00\x11\x08\x01\x02\x03\x04"s;
    for (std::size_t at = 985; at <= 1001; ++at) {
        const std::string bytes = std::string(at, '\0') + frame;
        const Size expected = at <= 998 ? Size{772, 258} : Size{0, 0};
        EXPECT_EQ(SizeOf(ImageType::jpeg, bytes), expected) << at;
    }
    EXPECT_EQ(SizeOf(ImageType::jpeg, frame.substr(0, 8)), Size(0, 258));
    EXPECT_EQ(SizeOf(ImageType::jpeg, "\xFF\xC0 "s + frame), Size(0x0801, 0x0011))
        << "the first marker counts, even in the wrong place";
}

}  // namespace
