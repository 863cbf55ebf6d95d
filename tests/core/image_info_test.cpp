#include "authoring/core/image_info.h"

#include <gtest/gtest.h>

#include <utility>

#include "core/kept_files.h"

namespace {

using namespace std::string_literals;
using authoring::DetectImageType;
using authoring::ImageHeight;
using authoring::ImageType;
using authoring::ImageWidth;

using Size = std::pair<float, float>;

Size SizeOf(ImageType type, std::string_view head) {
    return {ImageWidth(type, head), ImageHeight(type, head)};
}

struct Encoded {
    const char* file;
    ImageType type;
    Size size;
};

const Encoded kEncoded[] = {
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

TEST(ImageInfo, FilesOfRealEncodersFromTheBytesThatAreAskedFor) {
    for (const auto& [file, type, size] : kEncoded) {
        const std::string bytes = kept::Read("fuzz/corpus/image_info/"s + file);
        EXPECT_EQ(DetectImageType(bytes.substr(0, authoring::kImageTypeBytes)), type) << file;
        EXPECT_EQ(SizeOf(type, bytes.substr(0, authoring::ImageSizeBytes(type))), size) << file;
    }
}

TEST(ImageInfo, ACutFileHasItsValuesOrNone) {
    for (const auto& [file, type, size] : kEncoded) {
        const std::string bytes = kept::Read("fuzz/corpus/image_info/"s + file);
        bool typeSeen = false;
        Size last{0, 0};
        for (std::size_t length = 0; length <= bytes.size(); ++length) {
            const std::string cut = bytes.substr(0, length);
            const ImageType found = DetectImageType(cut);
            EXPECT_TRUE(found == type || (!typeSeen && found == ImageType::unrecognized)) << file << length;
            typeSeen = found == type;
            const Size now = SizeOf(type, cut);
            EXPECT_TRUE(now.first == last.first || (last.first == 0 && now.first == size.first))
                << file << length;
            EXPECT_TRUE(now.second == last.second || (last.second == 0 && now.second == size.second))
                << file << length;
            last = now;
        }
        EXPECT_EQ(last, size) << file;
    }
}

TEST(ImageInfo, TheTypeIsTheLastThatMatches) {
    EXPECT_EQ(DetectImageType(""), ImageType::unrecognized);
    EXPECT_EQ(DetectImageType("BM"), ImageType::bitmap);
    EXPECT_EQ(DetectImageType("GIFfy"), ImageType::gif);
    EXPECT_EQ(DetectImageType("gif89a"), ImageType::unrecognized);
    EXPECT_EQ(DetectImageType("GIF89a JFIF\0"s), ImageType::jpeg);
    EXPECT_EQ(DetectImageType("BM JFIF\0"s), ImageType::jpeg);
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
        EXPECT_EQ(SizeOf(ImageType::jpeg, bytes.substr(0, authoring::ImageSizeBytes(ImageType::jpeg))),
                  expected)
            << at;
    }
    EXPECT_EQ(SizeOf(ImageType::jpeg, frame.substr(0, 8)), Size(0, 258));
    EXPECT_EQ(SizeOf(ImageType::jpeg, "\xFF\xC0 "s + frame), Size(0x0801, 0x0011))
        << "the first marker counts, even in the wrong place";
}

TEST(ImageInfo, OnlyTheStoredTypeDecidesHowTheSizeIsRead) {
    const std::string gif = "GIF89a\x78\x00\x3C\x00"s;
    EXPECT_EQ(SizeOf(ImageType::gif, gif), Size(120, 60));
    for (const ImageType type : {ImageType::undetermined, ImageType::unrecognized, ImageType{7}}) {
        EXPECT_EQ(SizeOf(type, gif), Size(0, 0));
        EXPECT_EQ(authoring::ImageSizeBytes(type), 0U);
    }
}

TEST(ImageInfo, TagAndStatus) {
    EXPECT_EQ(authoring::ImageTag("logo.gif", 120, 60),
              R"(<img src="images/logo.gif" width="120" height="60" border="0">)");
    EXPECT_EQ(authoring::ImageTag("a \"b\"&\xE4.JPG", 0, 65535),
              "<img src=\"images/a \"b\"&\xE4.JPG\" width=\"0\" height=\"65535\" border=\"0\">");
    EXPECT_EQ(authoring::ImageStatus("logo.gif", 2048), "logo.gif    2048 bytes");
}

}  // namespace
