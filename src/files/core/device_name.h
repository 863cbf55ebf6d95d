// The names that Windows keeps for devices.
#pragma once

#include <string_view>

namespace files {

// Whether Windows would open a device and no file by this name, which is UTF-8 and has no folder.
bool IsDeviceName(std::string_view name);

}  // namespace files
