#include "files/core/device_name.h"

#include <algorithm>

#include "win/core/ascii.h"

namespace files {
namespace {

constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kPorts[] = {"COM", "LPT"};

// 1 to 9, or 1 to 3 raised, which Windows reads as those. COM0 and LPT0 are ordinary names.
bool IsPortNumber(std::string_view text) {
    if (text.size() == 1) return text[0] >= '1' && text[0] <= '9';
    return text == "\u00B9" || text == "\u00B2" || text == "\u00B3";
}

}  // namespace

bool IsDeviceName(std::string_view name) {
    // Whatever extension follows, and blanks before it.
    std::string_view stem = name.substr(0, name.find('.'));
    while (stem.ends_with(' ')) stem.remove_suffix(1);
    if (std::any_of(std::begin(kDevices), std::end(kDevices),
                    [stem](std::string_view device) { return win::SameName(stem, device); }))
        return true;
    return stem.size() > 3 && IsPortNumber(stem.substr(3)) &&
           std::any_of(std::begin(kPorts), std::end(kPorts),
                       [stem](std::string_view port) { return win::SameName(stem.substr(0, 3), port); });
}

}  // namespace files
