// Names and directories of an FTP server: its listing, the paths made of it, how a name is sent and under
// which it is saved. The server may be anything.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/core/code_pages.h"

namespace ftp {

// An entry of a remote directory.
struct RemoteFile {
    std::string name;  // the server's bytes, which are what it is called by
    std::string line;  // as the list shows it; that of a directory ends in "/"

    bool isDirectory() const { return line.ends_with('/'); }
    void markAsDirectory() { line += '/'; }
};

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
    explicit RemoteListing(const document::CodePages& pages) : pages_(pages) {}

    // One entry in the server's order, with its file attributes. False: stop asking for more, a listing
    // need not ever end. Entries without a line count too.
    bool add(std::string_view name, unsigned long attributes);

    // A directory is one whose attributes are exactly 16 (FILE_ATTRIBUTE_DIRECTORY), or whose name says so.
    std::vector<RemoteFile> files() && { return std::move(files_); }

 private:
    const document::CodePages& pages_;
    std::vector<RemoteFile> files_;
    std::size_t entries_ = 0;
};

// directory + "/" + name, whatever the two are: in "/" the result begins with "//".
std::string JoinRemote(std::string_view directory, std::string_view name);

// Where Move Up leads from `current`; none at `root`, the directory that the session started in, nor
// where there is nothing above: the button is enabled exactly when this has a value. The result never
// lies above `root`: a folder that was reached by a link and lies elsewhere leads back to `root`.
std::optional<std::string> DirectoryAbove(std::string_view current, std::string_view root);

// Whether a double-click tries to enter the entry as a directory: only when its name holds no ".".
bool OpensOnDoubleClick(std::string_view name);

// The option array upType in its order: "Binary", "Ascii", "Auto".
enum class TransferMode { binary = 0, ascii = 1, automatic = 2 };

// The values of WinINet's FTP_TRANSFER_TYPE_ASCII and FTP_TRANSFER_TYPE_BINARY.
enum class TransferType : unsigned long { ascii = 1, binary = 2 };

// Ascii and Auto behave alike on purpose: a picture sent as text would be spoilt, so the name decides.
TransferType ChooseTransferType(TransferMode mode, std::string_view fileName);

constexpr std::size_t kMaxLocalName = 128;  // bytes: leaves room for a folder within MAX_PATH

// A name that Windows accepts for a file in any folder, made from whatever a server's name looks like: the
// part after the last of / \ and :, with forbidden characters, controls and what is no character replaced by
// "_", blanks at both ends and dots at the end dropped, "_" before a device name such as "CON" or "com1.txt",
// and the middle of an overlong name cut out. Never empty ("download"), never a path.
std::string ProposedLocalName(std::string_view shown);

}  // namespace ftp
