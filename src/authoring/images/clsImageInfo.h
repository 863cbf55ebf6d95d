// What an image file says about itself in its first bytes.
#pragma once

#include <cstdint>
#include <string>

class clsImageInfo {
 public:
    const std::string& Filename() const { return filename_; }
    // Forgets the type.
    void setFilename(const std::string& path);

    // 1 bitmap, 2 GIF, 3 JPEG (JFIF), -1 unrecognised, read from the file every time. Throws win::Error when
    // the file cannot be read, and the type is 0 then.
    std::int32_t FileType();
    void setFileType(std::int32_t type) { fileType_ = type; }

    // In pixels, read from the file every time by the type that FileType() found or setFileType() gave; 0
    // when the file does not say it where such files do. Throw win::Error when the file cannot be read.
    float Height() const;
    float Width() const;

 private:
    std::string filename_;
    std::int32_t fileType_ = 0;
};
