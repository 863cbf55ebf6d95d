#include "ftp/core/local_name.h"

#include <algorithm>

namespace ftp {
namespace {

constexpr std::size_t kMaxExtension = 16;  // longer ones are cut like any other part of a name

bool IsForbidden(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F || std::string_view("<>\"/\\|?*:").find(c) != std::string_view::npos;
}

bool SameIgnoringCase(std::string_view text, std::string_view upper) {
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(), [](char a, char b) {
        return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
    });
}

// Windows opens a device by these names whatever extension follows them. The digits of the ports may
// be the raised ones of code page 1252 too.
bool IsDeviceName(std::string_view name) {
    std::string_view base = name.substr(0, name.find('.'));
    while (!base.empty() && base.back() == ' ') base.remove_suffix(1);
    for (const std::string_view device : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$", "CLOCK$"}) {
        if (SameIgnoringCase(base, device)) return true;
    }
    if (base.size() != 4) return false;
    const std::string_view port = base.substr(0, 3);
    return (SameIgnoringCase(port, "COM") || SameIgnoringCase(port, "LPT")) &&
           std::string_view("0123456789\xB9\xB2\xB3").find(base[3]) != std::string_view::npos;
}

void DropTrailingDotsAndBlanks(std::string& name) {
    name.resize(name.find_last_not_of(". ") + 1);
}

void Shorten(std::string& name) {
    if (name.size() <= kMaxLocalName) return;
    const std::size_t dot = name.rfind('.');
    std::string extension;
    if (dot != std::string::npos && name.size() - dot <= kMaxExtension) extension = name.substr(dot);
    name.resize(kMaxLocalName - extension.size());
    name += extension;
    DropTrailingDotsAndBlanks(name);
}

}  // namespace

std::string ProposedLocalName(std::string_view remote) {
    const std::size_t separator = remote.find_last_of("/\\:");
    std::string name(separator == std::string_view::npos ? remote : remote.substr(separator + 1));
    std::replace_if(name.begin(), name.end(), IsForbidden, '_');
    // File dialogs expand "%TEMP%" and the like; a single "%" is harmless.
    if (std::count(name.begin(), name.end(), '%') > 1) std::replace(name.begin(), name.end(), '%', '_');
    name.erase(0, std::min(name.size(), name.find_first_not_of(' ')));
    DropTrailingDotsAndBlanks(name);
    if (IsDeviceName(name)) name.insert(0, "_");
    Shorten(name);
    return name.empty() ? "download" : name;
}

}  // namespace ftp
