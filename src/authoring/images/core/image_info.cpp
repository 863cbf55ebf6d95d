#include "authoring/images/core/image_info.h"

namespace authoring {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kBitmapWidthAt = 18;
constexpr std::size_t kBitmapHeightAt = 22;
constexpr std::size_t kGifWidthAt = 6;
constexpr std::size_t kGifHeightAt = 8;

constexpr std::string_view kBaselineFrame = "\xFF\xC0"sv;
constexpr std::size_t kFrameSearchBytes = 1000;
constexpr std::size_t kFrameHeightAt = 5;  // from the marker on, behind length and precision
constexpr std::size_t kFrameWidthAt = 7;
constexpr std::size_t kFrameBytes = 9;

bool Has(std::string_view bytes, std::size_t at, std::size_t count) {
    return at <= bytes.size() && bytes.size() - at >= count;
}

std::uint32_t Byte(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

float LittleEndian16(std::string_view bytes, std::size_t at) {
    if (!Has(bytes, at, 2)) return 0;
    return static_cast<float>(Byte(bytes, at + 1)) * 256.0F + static_cast<float>(Byte(bytes, at));
}

float BigEndian16(std::string_view bytes, std::size_t at) {
    if (!Has(bytes, at, 2)) return 0;
    return static_cast<float>(Byte(bytes, at)) * 256.0F + static_cast<float>(Byte(bytes, at + 1));
}

float SignedLittleEndian32(std::string_view bytes, std::size_t at) {
    if (!Has(bytes, at, 4)) return 0;
    const std::uint32_t value =
        Byte(bytes, at) | Byte(bytes, at + 1) << 8 | Byte(bytes, at + 2) << 16 | Byte(bytes, at + 3) << 24;
    return static_cast<float>(static_cast<std::int32_t>(value));
}

// The marker has to begin and end in the first 1000 bytes; the values behind it may lie beyond them.
float InBaselineFrame(std::string_view bytes, std::size_t at) {
    const std::size_t marker = bytes.substr(0, kFrameSearchBytes).find(kBaselineFrame);
    return marker == std::string_view::npos ? 0 : BigEndian16(bytes, marker + at);
}

std::string WholeNumber(float value) {
    return std::to_string(static_cast<std::int64_t>(value));
}

}  // namespace

ImageType DetectImageType(std::string_view head) {
    head = head.substr(0, kImageTypeBytes);
    ImageType type = ImageType::unrecognized;
    if (head.starts_with("BM")) type = ImageType::bitmap;
    if (head.starts_with("GIF")) type = ImageType::gif;
    if (head.find("JFIF\0"sv) != std::string_view::npos) type = ImageType::jpeg;
    return type;
}

std::size_t ImageSizeBytes(ImageType type) {
    switch (type) {
        case ImageType::bitmap:
            return kBitmapHeightAt + 4;
        case ImageType::gif:
            return kGifHeightAt + 2;
        case ImageType::jpeg:
            return kFrameSearchBytes - kBaselineFrame.size() + kFrameBytes;
        default:
            return 0;
    }
}

float ImageWidth(ImageType type, std::string_view head) {
    switch (type) {
        case ImageType::bitmap:
            return SignedLittleEndian32(head, kBitmapWidthAt);
        case ImageType::gif:
            return LittleEndian16(head, kGifWidthAt);
        case ImageType::jpeg:
            return InBaselineFrame(head, kFrameWidthAt);
        default:
            return 0;
    }
}

float ImageHeight(ImageType type, std::string_view head) {
    switch (type) {
        case ImageType::bitmap:
            return SignedLittleEndian32(head, kBitmapHeightAt);
        case ImageType::gif:
            return LittleEndian16(head, kGifHeightAt);
        case ImageType::jpeg:
            return InBaselineFrame(head, kFrameHeightAt);
        default:
            return 0;
    }
}

std::string ImageTag(std::string_view fileName, float width, float height) {
    std::string tag = "<img src=\"images/";
    tag += fileName;
    tag += "\" width=\"" + WholeNumber(width);
    tag += "\" height=\"" + WholeNumber(height);
    tag += "\" border=\"0\">";
    return tag;
}

std::string ImageStatus(std::string_view fileName, std::uint64_t fileBytes) {
    std::string status(fileName);
    status += "    " + std::to_string(fileBytes) + " bytes";
    return status;
}

}  // namespace authoring
