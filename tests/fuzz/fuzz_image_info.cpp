// The first bytes of a file of any kind: every prefix of them must give the same size as the whole, or none.
#include "authoring/images/core/image_info.h"
#include "check.h"

using authoring::ImageType;

namespace {

void CheckSize(ImageType type, const std::string& bytes) {
    const std::string needed = bytes.substr(0, authoring::ImageSizeBytes(type));
    const float width = authoring::ImageWidth(type, bytes);
    const float height = authoring::ImageHeight(type, bytes);
    Check(authoring::ImageWidth(type, needed) == width && authoring::ImageHeight(type, needed) == height);
    if (type != ImageType::bitmap) Check(width >= 0 && width <= 65535 && height >= 0 && height <= 65535);
    for (std::size_t length = 0; length < needed.size(); length += 1 + length / 64) {
        // A copy of its own, so that a read beyond the end is seen.
        const std::string cut = needed.substr(0, length);
        const float cutWidth = authoring::ImageWidth(type, cut);
        const float cutHeight = authoring::ImageHeight(type, cut);
        Check((cutWidth == 0 || cutWidth == width) && (cutHeight == 0 || cutHeight == height));
    }
}

}  // namespace

void Try(std::string_view input) {
    const std::string bytes(input);
    const ImageType type = authoring::DetectImageType(bytes);
    Check(type != ImageType::undetermined);
    Check(type == authoring::DetectImageType(bytes.substr(0, authoring::kImageTypeBytes)));
    for (const ImageType read : {type, ImageType::bitmap, ImageType::gif, ImageType::jpeg}) {
        CheckSize(read, bytes);
    }
}
