#include "ftp/core/remote_names.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "files/core/device_name.h"
#include "ftp/core/server_text.h"
#include "win/core/ascii.h"

namespace ftp {
namespace {

constexpr unsigned long kDirectoryAttribute = 16;
constexpr std::string_view kBinaryEndings[] = {".jpg", ".gif", ".class", ".exe", ".zip", ".png"};
constexpr std::size_t kMaxExtension = 16;  // longer ones are cut like any other part of a name

// "/" itself keeps its slash.
std::string_view WithoutTrailingSlashes(std::string_view directory) {
    while (directory.size() > 1 && directory.back() == '/') directory.remove_suffix(1);
    return directory;
}

std::string_view Parent(std::string_view directory) {
    const std::size_t slash = directory.rfind('/');
    if (slash == std::string_view::npos) return {};
    return WithoutTrailingSlashes(directory.substr(0, slash + 1));
}

bool LiesAbove(std::string_view directory, std::string_view other) {
    if (directory.size() >= other.size() || other.substr(0, directory.size()) != directory) return false;
    return directory.empty() || directory.back() == '/' || other[directory.size()] == '/';
}

bool EndsWith(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() && win::SameName(name.substr(name.size() - ending.size()), ending);
}

bool IsForbidden(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F || std::string_view("<>\"/\\|?*:").find(c) != std::string_view::npos;
}

// A byte that is no character is shown as half a surrogate pair: three bytes that begin like this.
bool StandsForByte(std::string_view text) {
    return text.size() >= 3 && text[0] == '\xED' && static_cast<unsigned char>(text[1]) >= 0xA0;
}

std::string WithoutForbidden(std::string_view text) {
    std::string name;
    while (!text.empty()) {
        const bool byte = StandsForByte(text);
        name += byte || IsForbidden(text[0]) ? '_' : text[0];
        text.remove_prefix(byte ? 3 : 1);
    }
    // File dialogs expand "%TEMP%" and the like; a single "%" is harmless.
    if (std::count(name.begin(), name.end(), '%') > 1) std::replace(name.begin(), name.end(), '%', '_');
    return name;
}

void DropTrailingDotsAndBlanks(std::string& name) {
    name.resize(name.find_last_not_of(". ") + 1);
}

bool ContinuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

void Shorten(std::string& name) {
    if (name.size() <= kMaxLocalName) return;
    const std::size_t dot = name.rfind('.');
    std::string extension;
    if (dot != std::string::npos && name.size() - dot <= kMaxExtension) extension = name.substr(dot);
    std::size_t end = kMaxLocalName - extension.size();
    while (end > 0 && ContinuesCharacter(name[end])) --end;
    name.resize(end);
    name += extension;
    DropTrailingDotsAndBlanks(name);
}

}  // namespace

bool IsListableName(std::string_view name) {
    if (name.empty() || name.size() > kMaxRemoteName) return false;
    if (name == "." || name == ".." || name == "./" || name == "../" || name == "/") return false;
    return name.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool RemoteListing::add(std::string_view name, unsigned long attributes) {
    if (entries_ == kMaxListedEntries) return false;
    ++entries_;
    if (IsListableName(name)) {
        const bool named = name.ends_with('/');
        if (named) name.remove_suffix(1);
        RemoteFile file{std::string(name), ShownText(name, pages_)};
        if (named || (attributes == kDirectoryAttribute && !file.isDirectory())) file.markAsDirectory();
        files_.push_back(std::move(file));
    }
    return entries_ < kMaxListedEntries;
}

std::string JoinRemote(std::string_view directory, std::string_view name) {
    std::string path(directory);
    path += '/';
    path += name;
    return path;
}

std::optional<std::string> DirectoryAbove(std::string_view current, std::string_view root) {
    const std::string_view from = WithoutTrailingSlashes(current);
    const std::string_view start = WithoutTrailingSlashes(root);
    if (from == start) return std::nullopt;
    const std::string_view parent = Parent(from);
    const std::string_view above = parent.empty() || LiesAbove(parent, start) ? start : parent;
    // Neither leads anywhere where the server never told its directory.
    if (above == from || above.empty()) return std::nullopt;
    return std::string(above);
}

bool OpensOnDoubleClick(std::string_view name) {
    return name.find('.') == std::string_view::npos;
}

TransferType ChooseTransferType(TransferMode mode, std::string_view fileName) {
    if (mode == TransferMode::binary) return TransferType::binary;
    const bool isBinary =
        std::any_of(std::begin(kBinaryEndings), std::end(kBinaryEndings),
                    [fileName](std::string_view ending) { return EndsWith(fileName, ending); });
    return isBinary ? TransferType::binary : TransferType::ascii;
}

std::string ProposedLocalName(std::string_view shown) {
    const std::size_t separator = shown.find_last_of("/\\:");
    std::string name =
        WithoutForbidden(separator == std::string_view::npos ? shown : shown.substr(separator + 1));
    name.erase(0, std::min(name.size(), name.find_first_not_of(' ')));
    DropTrailingDotsAndBlanks(name);
    if (files::IsDeviceName(name)) name.insert(0, "_");
    Shorten(name);
    return name.empty() ? "download" : name;
}

}  // namespace ftp
