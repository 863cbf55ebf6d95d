// Reading a file whole.
#pragma once

#include <optional>
#include <string>

namespace mBinOpen {

// The bytes of the file, read in blocks of 20,000; waiting messages are handled after each block, so any
// document may be gone afterwards. Nothing when the file cannot be read, is a folder or is locked.
std::optional<std::string> ReadFileBinary(const std::string& path);

// The same at one go, without handling any message.
std::optional<std::string> ReadFileAtOnce(const std::string& path);

}  // namespace mBinOpen
