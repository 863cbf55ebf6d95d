// Directories and names on an FTP server, and the lines of lstRemoteFiles that show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ftp {

// directory + "/" + name, whatever the two are: in "/" the result begins with "//".
std::string JoinRemote(std::string_view directory, std::string_view name);

// Where Move Up leads from `current`; none at `root`, the directory that the session started in, nor
// where there is nothing above: the button is enabled exactly when this has a value. The result never
// lies above `root`: a folder that was reached by a link and lies elsewhere leads back to `root`.
std::optional<std::string> DirectoryAbove(std::string_view current, std::string_view root);

// A line that stands for a directory ends in "/".
bool IsDirectoryLine(std::string_view line);

// The name that the server knows: the line without the "/" of a directory.
std::string_view NameOfLine(std::string_view line);

// Whether a double-click tries to enter the line as a directory: only when it holds no ".".
bool OpensOnDoubleClick(std::string_view line);

}  // namespace ftp
