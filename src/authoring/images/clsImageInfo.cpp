#include "authoring/images/clsImageInfo.h"

#include "authoring/images/core/image_info.h"
#include "win/error.h"
#include "win/unique.h"
#include "win/wide_path.h"

namespace {

// At most `count` bytes; fewer when the file is shorter.
std::string FirstBytes(const std::string& path, std::size_t count) {
    const win::UniqueFile file(::CreateFileW(win::WidePath(path).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    if (!file) win::ThrowLastError();
    std::string bytes(count, '\0');
    DWORD read = 0;
    win::Check(::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(count), &read, nullptr));
    bytes.resize(read);
    return bytes;
}

std::string SizeBytes(const std::string& path, authoring::ImageType type) {
    return FirstBytes(path, authoring::ImageSizeBytes(type));
}

}  // namespace

void clsImageInfo::setFilename(const std::string& path) {
    filename_ = path;
    fileType_ = 0;
}

std::int32_t clsImageInfo::FileType() {
    fileType_ = 0;
    fileType_ = static_cast<std::int32_t>(
        authoring::DetectImageType(FirstBytes(filename_, authoring::kImageTypeBytes)));
    return fileType_;
}

float clsImageInfo::Height() const {
    const auto type = static_cast<authoring::ImageType>(fileType_);
    return authoring::ImageHeight(type, SizeBytes(filename_, type));
}

float clsImageInfo::Width() const {
    const auto type = static_cast<authoring::ImageType>(fileType_);
    return authoring::ImageWidth(type, SizeBytes(filename_, type));
}
