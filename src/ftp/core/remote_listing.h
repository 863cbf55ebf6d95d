// What is taken over from the listing that a server sends. The server may be anything.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ftp {

constexpr std::size_t kMaxListedEntries = 100'000;
// Bytes; WinINet hands out 259 at most, and no common file system has longer names than 255.
constexpr std::size_t kMaxRemoteName = 1024;

// Whether an entry gets a line. "." and ".." do not: they are no entries of the directory, the probe
// for directories would find both, and the menu would then offer to delete them. Nor do names that no
// command can carry: empty or too long ones, and those with CR, LF or NUL, which would end the
// command and let the server's listing write the next one.
bool IsListableName(std::string_view name);

class RemoteListing {
 public:
    // One entry in the server's order, with its file attributes. False: stop asking for more, a listing
    // need not ever end. Entries without a line count too.
    bool add(std::string_view name, unsigned long attributes);

    // One line per entry; those whose attributes are exactly 16 (FILE_ATTRIBUTE_DIRECTORY) end in "/".
    const std::vector<std::string>& lines() const { return lines_; }

 private:
    std::vector<std::string> lines_;
    std::size_t entries_ = 0;
};

}  // namespace ftp
