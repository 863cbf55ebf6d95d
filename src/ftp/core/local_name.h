// The name under which a remote file is proposed to be saved.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ftp {

constexpr std::size_t kMaxLocalName = 128;  // bytes: leaves room for a folder within MAX_PATH

// A name that Windows accepts for a file in any folder, made from whatever a server sent: the part
// after the last of / \ and :, with forbidden characters and controls replaced by "_", blanks at
// both ends and dots at the end dropped, "_" before a device name such as "CON" or "com1.txt", and
// the middle of an overlong name cut out. Never empty ("download"), never a path.
std::string ProposedLocalName(std::string_view remote);

}  // namespace ftp
