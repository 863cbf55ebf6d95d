// Type and size of an image, from the first bytes of its file, and the tag made of them. Knows Windows
// bitmaps (BITMAPFILEHEADER and BITMAPINFOHEADER), GIF (GIF89a specification, section 18) and JFIF with
// a baseline frame (ITU-T T.81, B.2.2; T.871, 10.1). An Exif file without a JFIF segment is unrecognized
// and a progressive JPEG has no size: neither holds what is looked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace authoring {

enum class ImageType : std::int32_t { unrecognized = -1, undetermined = 0, bitmap = 1, gif = 2, jpeg = 3 };

// How many bytes from the start of the file DetectImageType looks at.
inline constexpr std::size_t kImageTypeBytes = 100;

// The type by the first bytes of a file; fewer than kImageTypeBytes are enough if the file is shorter.
ImageType DetectImageType(std::string_view head);

// How many bytes from the start of a file ImageWidth and ImageHeight look at for that type: 0 for those
// that have no size.
std::size_t ImageSizeBytes(ImageType type);

// Width or height in pixels by the first bytes of the file, of which there may be fewer than
// ImageSizeBytes. 0 if the bytes that hold it are missing, if a JPEG has no baseline frame marker in its
// first 1000 bytes, or if the type has no size. A bitmap's values are signed, and rounded beyond 2^24.
float ImageWidth(ImageType type, std::string_view head);
float ImageHeight(ImageType type, std::string_view head);

// The tag for an image that will lie in the folder "images" beside the page. `fileName` is the bare name and
// is inserted as it is; sizes are in pixels.
std::string ImageTag(std::string_view fileName, float width, float height);

// "logo.gif    2048 bytes".
std::string ImageStatus(std::string_view fileName, std::uint64_t fileBytes);

}  // namespace authoring
